// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/InfoText.h>

#include <Brevano/commands/JsonLine.h>
#include <Brevano/commands/MediaFacts.h>
#include <Brevano/commands/ShownText.h>
#include <NxCore/NxConvertUtility.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/NxStreamInfo.h>

#include <array>

using namespace NXVBLMODEL;

namespace {

/// By NxFootageStatus.
constexpr std::array<const char *, 4> FactWords = {"waiting", "done", "none", "failed"};
constexpr std::array<const char *, 4> PictureWords = {"waiting", "made", "none", "failed"};

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
    return QStringLiteral("%1 frames a second%2")
        .arg(rateText(rate), isVariable ? QStringLiteral(" (they vary)") : QString());
}

QString turnedText(int rotation)
{
    return rotation == 0 ? QString() : QStringLiteral("turned by %1 degrees").arg(rotation);
}

QString pictureText(const INxMediaInfo &info)
{
    if (const NxImageInfo *image = info.imageInfo())
        return joined({sizeText(image->size), image->format, turnedText(image->rotation)});
    const NxVideoStreamInfo *video = info.videoStream();
    if (!video)
        return {};
    const QString depth =
        video->bitDepth > 0 ? QStringLiteral("%1 bit").arg(video->bitDepth) : QString();
    return joined({sizeText(video->frameSize),
                   framesText(info.frameRate(), video->variableFrameRate),
                   withTag(video->codecName, video->codecTag), video->pixelFormat, depth,
                   turnedText(video->rotation)});
}

QString soundText(const INxMediaInfo &info)
{
    const NxAudioStreamInfo *audio = info.audioStream();
    if (!audio)
        return {};
    const QString rate =
        audio->sampleRate > 0 ? QStringLiteral("%1 Hz").arg(audio->sampleRate) : QString();
    const QString channels =
        audio->channels > 0 ? ShownText::count(audio->channels, "channel", "channels") : QString();
    return joined({rate, channels, withTag(audio->format, audio->codecTag)});
}

QString lengthText(const INxMediaInfo &info)
{
    const bool hasLength = info.frameRate().isValid() && info.frameCount() > 0;
    if (!hasLength)
        return {};
    const QString clock =
        NxConvertUtility::frame2String(info.frameCount(), info.frameRate().toDouble());
    return info.kind() == mikVideo ? QStringLiteral("%1 (%2)").arg(
               clock, ShownText::count(info.frameCount(), "frame", "frames"))
                                   : clock;
}

QString pictureFileText(NxFootageStatus status, const QString &path, const QString &reason)
{
    // By NxFootageStatus.
    const std::array<QString, 4> texts = {QStringLiteral("not made yet"), path,
                                          QStringLiteral("there is none"), reason};
    return texts[size_t(status)];
}

/// Names and values in two columns.
class Sheet
{
public:
    void add(const char *name, const QString &value)
    {
        constexpr int width = 12;
        if (value.isEmpty())
            return;
        const QString head = QLatin1String(name) + QLatin1Char(':');
        m_lines.append(ShownText::oneLine(head.leftJustified(width) + value));
    }
    [[nodiscard]] const QStringList &lines() const { return m_lines; }

private:
    QStringList m_lines;
};

void addFile(Sheet *sheet, const INxAbstractMediaItem &media)
{
    sheet->add("Name", media.name());
    sheet->add("File", media.sourcePath());
    sheet->add("Folder", MediaFacts::folder(media));
    sheet->add("Section", MediaFacts::section(media));
    sheet->add("Type", MediaFacts::typeWord(media));
    sheet->add("Size", media.sourceSize() < 0 ? QString() : ShownText::size(media.sourceSize()));
    const QDateTime created = media.dateCreated();
    sheet->add("Created", created.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
    if (MediaFacts::isMissing(media))
        sheet->add("State", QStringLiteral("missing"));
}

void addContents(Sheet *sheet, const INxAbstractMediaItem &media)
{
    const INxMediaInfo *info = media.mediaInfo();
    if (!info)
        return;
    sheet->add("Length", lengthText(*info));
    sheet->add("Picture", pictureText(*info));
    sheet->add("Sound", soundText(*info));
    sheet->add("Camera", media.cameraName());
    sheet->add("Timecode", info->timecode());
    sheet->add("Reel", info->reelName());
    sheet->add("Text", info->textEncoding());
}

void addPicture(JsonLine *line, const char *key, const QString &path, NxFootageStatus status,
                const QString &reason)
{
    const QByteArray name(key);
    line->addTextOrNull(key, path);
    line->addText((name + "_state").constData(), QLatin1String(PictureWords[size_t(status)]));
    line->addTextOrNull((name + "_reason").constData(), reason);
}

} // namespace

QStringList InfoText::lines(const INxAbstractMediaItem &media, const NxFootageState &state)
{
    Sheet sheet;
    addFile(&sheet, media);
    if (state.facts == NxFootageStatus::Failed) {
        sheet.add("State", QStringLiteral("unreadable: %1").arg(state.reason));
        return sheet.lines(); // No picture is to come.
    }
    if (state.facts == NxFootageStatus::Waiting)
        sheet.add("State", QStringLiteral("not read yet"));
    else
        addContents(&sheet, media);
    sheet.add("Cover", pictureFileText(state.cover, state.coverPath, state.coverReason));
    sheet.add("Film strip", pictureFileText(state.strip, state.stripPath, state.stripReason));
    return sheet.lines();
}

QByteArray InfoText::json(const INxAbstractMediaItem &media, const NxFootageState &state)
{
    const INxMediaInfo *info = media.mediaInfo();
    const NxVideoStreamInfo *video = info ? info->videoStream() : nullptr;
    const NxAudioStreamInfo *audio = info ? info->audioStream() : nullptr;
    JsonLine line;
    MediaFacts::addIdentity(&line, media);
    MediaFacts::addState(&line, media);
    MediaFacts::addContents(&line, media);
    line.addTextOrNull("reel", info ? info->reelName() : QString());
    line.addTextOrNull("audio_codec", audio ? audio->format : QString());
    line.addTextOrNull("pixel_format", video ? video->pixelFormat : QString());
    line.addNumberOrNull("bit_depth", video ? video->bitDepth : 0, video && video->bitDepth > 0);
    line.addTextOrNull("text_encoding", info ? info->textEncoding() : QString());
    line.addText("read", statusWord(state.facts));
    line.addTextOrNull("reason", state.reason);
    line.addTextOrNull("fingerprint", QString::fromLatin1(state.fingerprint));
    addPicture(&line, "cover", state.coverPath, state.cover, state.coverReason);
    addPicture(&line, "strip", state.stripPath, state.strip, state.stripReason);
    return line.text();
}

QString InfoText::statusWord(NxFootageStatus status)
{
    return QLatin1String(FactWords[size_t(status)]);
}
