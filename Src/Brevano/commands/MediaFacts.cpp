// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/MediaFacts.h>

#include <Brevano/commands/JsonLine.h>
#include <Brevano/commands/Sections.h>
#include <NxCore/NxConvertUtility.h>
#include <NxCore/NxFile.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaViews/NxMediaColumns.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/NxFolderPath.h>
#include <NxVBLModel/NxStreamInfo.h>

#include <algorithm>
#include <iterator>

using namespace NXVBLMODEL;

namespace {

struct TypeWord
{
    NxMediaType type;
    const char *word;
};

constexpr TypeWord typeWords[] = {
    {mtVideo, "video"},
    {mtVideoAudio, "video"},
    {mtAudio, "audio"},
    {mtImage, "image"},
    {mtTitle, "title"},
    {mtTransition, "transition"},
    {mtEffect, "effect"},
    {mtSplitScreen, "split screen"},
    {mtElement, "element"},
    {mtSubtitle, "subtitle"},
    {mtProjectTemplate, "template"},
};

/// The facts of a file, or neutral ones while it was not read.
struct Facts
{
    NxVideoStreamInfo video;
    NxAudioStreamInfo audio;
    NxImageInfo image;
    qint64 frames = -1;
    qint64 milliseconds = -1;
    NxRational rate;
    QString timecode;
};

/// Sound counts in hundredths of a second.
constexpr qint64 millisecondsPerSoundUnit = 10;

bool hasFrames(const INxMediaInfo &info)
{
    return info.kind() == mikVideo && info.frameRate().isValid() && info.frameRate().num > 0;
}

qint64 millisecondsOf(const INxMediaInfo &info)
{
    if (info.kind() == mikAudio)
        return info.duration() * millisecondsPerSoundUnit;
    if (hasFrames(info) || info.kind() == mikSubtitle)
        return NxConvertUtility::frame2Msec(info.frameCount(), info.frameRate().toDouble());
    return -1;
}

Facts factsOf(const INxMediaInfo *info)
{
    Facts facts;
    if (!info)
        return facts;
    if (info->videoStream())
        facts.video = *info->videoStream();
    if (info->audioStream())
        facts.audio = *info->audioStream();
    if (info->imageInfo())
        facts.image = *info->imageInfo();
    facts.timecode = info->timecode();
    facts.milliseconds = millisecondsOf(*info);
    if (hasFrames(*info)) {
        facts.rate = info->frameRate();
        facts.frames = info->frameCount();
    }
    return facts;
}

QString rateText(const NxRational &rate)
{
    return rate.isValid() ? QStringLiteral("%1/%2").arg(rate.num).arg(rate.den) : QString();
}

} // namespace

QString MediaFacts::typeWord(const INxAbstractMediaItem &media)
{
    if (NxMediaLibraryUtils::isGif(&media))
        return QStringLiteral("gif");
    const auto known =
        std::find_if(std::begin(typeWords), std::end(typeWords),
                     [&media](const TypeWord &entry) { return entry.type == media.mediaType(); });
    return known == std::end(typeWords) ? QStringLiteral("other")
                                        : QString(QLatin1String(known->word));
}

QStringList MediaFacts::columnTexts(const INxAbstractMediaItem &media, NxMediaCategoryType category)
{
    QStringList texts = NxMediaColumns::texts(media, category);
    const int typeColumn = NxMediaColumns::column(category, NXMEDIALIBRARY::sbType);
    if (typeColumn >= 0)
        texts.replace(typeColumn, typeWord(media));
    return texts;
}

QString MediaFacts::folder(const INxAbstractMediaItem &media)
{
    return NxFolderPath::of(media.parentFolder());
}

QString MediaFacts::section(const INxAbstractMediaItem &media)
{
    const INxFolderMedia *parent = media.parentFolder();
    const INxFolderMedia *section = parent ? parent->owner() : nullptr;
    const QString word = Sections::wordOf(section);
    return word.isEmpty() && section ? section->name() : word;
}

bool MediaFacts::isMissing(const INxAbstractMediaItem &media)
{
    const bool needsFile = !media.isResource() || !media.sourcePath().isEmpty();
    return needsFile && !NxFile::exists(media.sourcePath());
}

QString MediaFacts::unreadableReason(const INxAbstractMediaItem &media)
{
    return media.isUnavailable() && !isMissing(media) ? media.unavailableReason() : QString();
}

qint64 MediaFacts::milliseconds(const INxAbstractMediaItem &media)
{
    const INxMediaInfo *info = media.mediaInfo();
    const qint64 length = info ? millisecondsOf(*info) : 0;
    return length > 0 ? length : -1;
}

bool MediaFacts::isKnownMissing(const INxAbstractMediaItem &media)
{
    return !media.isResource() && !NxFile::knownToExist(media.sourcePath()).value_or(true);
}

void MediaFacts::addIdentity(JsonLine *line, const INxAbstractMediaItem &media)
{
    line->addText("name", media.name());
    line->addTextOrNull("path", media.sourcePath());
    line->addText("section", section(media));
    line->addText("folder", folder(media));
    line->addText("type", typeWord(media));
    line->addNumberOrNull("size", media.sourceSize(), media.sourceSize() >= 0);
    line->addTimeOrNull("created", media.dateCreated());
}

void MediaFacts::addState(JsonLine *line, const INxAbstractMediaItem &media)
{
    line->addBool("missing", isMissing(media));
    line->addTextOrNull("unreadable", unreadableReason(media));
}

void MediaFacts::addContents(JsonLine *line, const INxAbstractMediaItem &media)
{
    const Facts facts = factsOf(media.mediaInfo());
    const bool isMoving = !facts.video.frameSize.isEmpty();
    const bool isStill = !isMoving && !facts.image.size.isEmpty();
    const QSize size = isMoving ? facts.video.frameSize : facts.image.size;
    const QString codec = isMoving  ? facts.video.codecName
                          : isStill ? facts.image.format
                                    : facts.audio.format;
    const int rotation = isMoving ? facts.video.rotation : facts.image.rotation;
    line->addNumberOrNull("duration_ms", facts.milliseconds, facts.milliseconds > 0);
    line->addNumberOrNull("frames", facts.frames, facts.frames > 0);
    line->addTextOrNull("fps", rateText(facts.rate));
    line->addNumberOrNull("width", size.width(), !size.isEmpty());
    line->addNumberOrNull("height", size.height(), !size.isEmpty());
    line->addNumberOrNull("rotation", rotation, isMoving || isStill);
    line->addTextOrNull("codec", codec);
    line->addNumberOrNull("sample_rate", facts.audio.sampleRate, facts.audio.sampleRate > 0);
    line->addNumberOrNull("channels", facts.audio.channels, facts.audio.channels > 0);
    line->addTextOrNull("camera", media.cameraName());
    line->addTextOrNull("timecode", facts.timecode);
    if (isMoving)
        line->addBool("variable_rate", facts.video.variableFrameRate);
    else
        line->addNull("variable_rate");
}
