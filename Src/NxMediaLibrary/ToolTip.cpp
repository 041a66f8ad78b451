// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/ToolTip.h>

#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxAbstractMediaItem.h>

#include <QStringList>

namespace {

using Builder = QString (*)(const INxAbstractMedia *);

struct BuilderOfType
{
    NXVBLMODEL::NxMediaType type;
    Builder build;
};

constexpr BuilderOfType MediaBuilders[] = {
    {NXVBLMODEL::mtVideo, &ToolTip::GetMediaVideoToolTip},
    {NXVBLMODEL::mtVideoAudio, &ToolTip::GetMediaVideoAudioToolTip},
    {NXVBLMODEL::mtAudio, &ToolTip::GetMediaAudioToolTip},
    {NXVBLMODEL::mtSubtitle, &ToolTip::GetMediaSubTitleToolTip},
    {NXVBLMODEL::mtImage, &ToolTip::GetMediaImageToolTip},
    {NXVBLMODEL::mtProjectTemplate, &ToolTip::GetMediaProjectTemplateToolTip},
};

constexpr BuilderOfType EffectBuilders[] = {
    {NXVBLMODEL::mtAudio, &ToolTip::GetAudioToolTip},
    {NXVBLMODEL::mtElement, &ToolTip::GetElementToolTip},
    {NXVBLMODEL::mtEffect, &ToolTip::GetEffectToolTip},
    {NXVBLMODEL::mtTitle, &ToolTip::GetTitleToolTip},
    {NXVBLMODEL::mtTransition, &ToolTip::GetTransitionToolTip},
    {NXVBLMODEL::mtSplitScreen, &ToolTip::GetSplitScreenToolTip},
};

/// Null when no builder is for media of this type.
template<size_t Count>
Builder builderFor(const INxAbstractMedia *media, const BuilderOfType (&builders)[Count])
{
    if (!media)
        return nullptr;
    for (const BuilderOfType &candidate : builders) {
        if (candidate.type == media->mediaType())
            return candidate.build;
    }
    return nullptr;
}

const INxAbstractMediaItem *asItem(const INxAbstractMedia *media)
{
    return dynamic_cast<const INxAbstractMediaItem *>(media);
}

/// What is not known has no line; the name always has one.
QString lines(const INxAbstractMediaItem *item, QStringList known)
{
    known.removeAll(QString());
    known.prepend(ToolTip::getName(item));
    return known.join(QLatin1Char('\n'));
}

QString mediaText(const INxAbstractMedia *media, const QStringList &more = {})
{
    const INxAbstractMediaItem *item = asItem(media);
    if (!item)
        return {};
    return lines(item, QStringList{NxMediaLibraryUtils::getCreatDate(item),
                                   NxMediaLibraryUtils::getDuration(item)}
                           + more);
}

QString downloadHint()
{
    return ToolTip::tr("Click to download the online content");
}

QString dragHint()
{
    return ToolTip::tr("Drag to the timeline to apply");
}

QString timedResourceText(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = asItem(media);
    if (!item)
        return {};
    return lines(item, {NxMediaLibraryUtils::getDuration(item),
                        item->isNeedDownload() ? downloadHint() : QString()});
}

QString appliedResourceText(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = asItem(media);
    if (!item)
        return {};
    return lines(item, {item->isNeedDownload() ? downloadHint() : dragHint()});
}

QString draggedResourceText(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = asItem(media);
    return item ? lines(item, {dragHint()}) : QString();
}

} // namespace

QString ToolTip::GetMediaDataToolTip(const INxAbstractMedia *media)
{
    if (const Builder build = builderFor(media, MediaBuilders))
        return build(media);
    if (NxMediaLibraryUtils::isVideo(media))
        return GetMediaVideoToolTip(media);
    return NxMediaLibraryUtils::isPhoto(media) ? GetMediaImageToolTip(media) : QString();
}

QString ToolTip::GetEffectDataToolTip(const INxAbstractMedia *media)
{
    const Builder build = builderFor(media, EffectBuilders);
    return build ? build(media) : QString();
}

QString ToolTip::GetMediaVideoToolTip(const INxAbstractMedia *media)
{
    return mediaText(media);
}

QString ToolTip::GetMediaVideoAudioToolTip(const INxAbstractMedia *media)
{
    return mediaText(media);
}

QString ToolTip::GetMediaAudioToolTip(const INxAbstractMedia *media)
{
    return mediaText(media);
}

QString ToolTip::GetMediaSubTitleToolTip(const INxAbstractMedia *media)
{
    return mediaText(media);
}

QString ToolTip::GetMediaImageToolTip(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = asItem(media);
    if (!item)
        return {};
    return getName(item) + QLatin1Char('\n') + NxMediaLibraryUtils::getCreatDate(item);
}

QString ToolTip::GetMediaProjectTemplateToolTip(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = asItem(media);
    if (!item)
        return {};
    QStringList more;
    const QSize size = item->templateSize();
    if (!size.isEmpty())
        more += QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
    if (item->templateSlotCount() > 0)
        more += tr("Media: %1").arg(item->templateSlotCount());
    return mediaText(media, more);
}

QString ToolTip::GetAudioToolTip(const INxAbstractMedia *media)
{
    return timedResourceText(media);
}

QString ToolTip::GetElementToolTip(const INxAbstractMedia *media)
{
    return timedResourceText(media);
}

QString ToolTip::GetEffectToolTip(const INxAbstractMedia *media)
{
    return appliedResourceText(media);
}

QString ToolTip::GetTitleToolTip(const INxAbstractMedia *media)
{
    return appliedResourceText(media);
}

QString ToolTip::GetTransitionToolTip(const INxAbstractMedia *media)
{
    return draggedResourceText(media);
}

QString ToolTip::GetSplitScreenToolTip(const INxAbstractMedia *media)
{
    return draggedResourceText(media);
}

QString ToolTip::getName(const INxAbstractMediaItem *item)
{
    return item ? item->name() : QString();
}
