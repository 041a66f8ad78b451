// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/InfoFacts.h>

#include <NxCore/NxConvertUtility.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/NxStreamInfo.h>

#include <algorithm>

using namespace NXVBLMODEL;

namespace {

QString rateText(const NxRational &rate)
{
    constexpr int decimals = 3;
    QString text = QString::number(rate.toDouble(), 'f', decimals);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}

QString joined(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

/// Tags have four characters; short ones are filled up with blanks.
QString withTag(const QString &codec, const QString &tag)
{
    const QString shown = tag.trimmed();
    if (codec.isEmpty())
        return shown;
    return shown.isEmpty() || shown == codec ? codec : codec + QStringLiteral(" (%1)").arg(shown);
}

QString sizeText(const QSize &size)
{
    return size.isEmpty() ? QString()
                          : QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

QString framesText(const NxRational &rate, bool isVariable)
{
    const bool isKnown = rate.isValid() && rate.num > 0;
    if (!isKnown)
        return {};
    return (isVariable ? InfoFacts::tr("%1 frames a second (they vary)")
                       : InfoFacts::tr("%1 frames a second"))
        .arg(rateText(rate));
}

QString turnedText(int rotation)
{
    return rotation == 0 ? QString() : InfoFacts::tr("turned by %1 degrees").arg(rotation);
}

QString pictureText(const INxMediaInfo &info)
{
    if (const NxImageInfo *image = info.imageInfo())
        return joined({sizeText(image->size), image->format, turnedText(image->rotation)});
    const NxVideoStreamInfo *video = info.videoStream();
    if (!video)
        return {};
    const QString depth =
        video->bitDepth > 0 ? InfoFacts::tr("%1 bit").arg(video->bitDepth) : QString();
    return joined({sizeText(video->frameSize),
                   framesText(info.frameRate(), video->variableFrameRate),
                   withTag(video->codecName, video->codecTag), video->pixelFormat, depth,
                   turnedText(video->rotation)});
}

QString channelsText(int channels)
{
    return (channels == 1 ? InfoFacts::tr("%1 channel") : InfoFacts::tr("%1 channels"))
        .arg(channels);
}

QString soundText(const INxMediaInfo &info)
{
    const NxAudioStreamInfo *audio = info.audioStream();
    if (!audio)
        return {};
    const QString rate =
        audio->sampleRate > 0 ? InfoFacts::tr("%1 Hz").arg(audio->sampleRate) : QString();
    const QString channels = audio->channels > 0 ? channelsText(audio->channels) : QString();
    return joined({rate, channels, withTag(audio->format, audio->codecTag)});
}

QString countText(qint64 frames)
{
    return (frames == 1 ? InfoFacts::tr("%1 frame") : InfoFacts::tr("%1 frames")).arg(frames);
}

QString lengthText(const INxMediaInfo &info)
{
    const bool hasLength = info.frameRate().isValid() && info.frameCount() > 0;
    if (!hasLength)
        return {};
    const QString clock =
        NxConvertUtility::frame2String(info.frameCount(), info.frameRate().toDouble());
    return info.kind() == mikVideo
               ? QStringLiteral("%1 (%2)").arg(clock, countText(info.frameCount()))
               : clock;
}

} // namespace

QVector<InfoFact> InfoFacts::contents(const INxAbstractMediaItem &media)
{
    const INxMediaInfo *info = media.mediaInfo();
    if (!info)
        return {};
    QVector<InfoFact> facts = {
        {QT_TR_NOOP("Length"), lengthText(*info)},  {QT_TR_NOOP("Picture"), pictureText(*info)},
        {QT_TR_NOOP("Sound"), soundText(*info)},    {QT_TR_NOOP("Camera"), media.cameraName()},
        {QT_TR_NOOP("Timecode"), info->timecode()}, {QT_TR_NOOP("Reel"), info->reelName()},
        {QT_TR_NOOP("Text"), info->textEncoding()},
    };
    facts.erase(std::remove_if(facts.begin(), facts.end(),
                               [](const InfoFact &fact) { return fact.value.isEmpty(); }),
                facts.end());
    return facts;
}

QString InfoFacts::label(const InfoFact &fact)
{
    return tr(fact.label);
}
