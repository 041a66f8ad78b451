// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineFixture.h"

#include <NxVBLEngine/objects/NxClipNode.h>
#include <NxVBLEngine/objects/NxTimelineNode.h>
#include <NxVBLModel/INxCompositeTimeline.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/INxSplitScreenClip.h>
#include <NxWorkerProtocol/NxWorkerMessages.h>

#include <QTextStream>

EngineFixture::EngineFixture()
    : memory(QString()),
      category(memory.category(NXVBLMODEL::mctMedia)),
      section(category->folder(NXVBLMODEL::fidRoot)),
      folders(category->engineFolderManager()),
      items(category->engineItemManager()),
      undo(memory.undoStack()),
      editor(memory.timelines()->editor())
{
}

NxEngineMedia *EngineFixture::addMedia(NxEngineFolder *folder, const QString &name)
{
    return addMedia(folder, QStringList(name)).first();
}

QVector<NxEngineMedia *> EngineFixture::addMedia(NxEngineFolder *folder, const QStringList &names)
{
    QVector<NxMediaSeed> seeds;
    for (const QString &name : names) {
        NxMediaSeed seed;
        seed.path = QStringLiteral("/footage/") + name;
        seeds.append(seed);
    }
    return memory.addNewMedia(folder, seeds);
}

NxEngineFolder *EngineFixture::addFolder(NxEngineFolder *parent, const QString &name)
{
    return folders->addFolder(parent, name) ? parent->childNamed(name) : nullptr;
}

NxEngineMedia *EngineFixture::named(const QString &name) const
{
    for (NxEngineMedia *media : memory.livingMedia()) {
        if (media->name() == name)
            return media;
    }
    return nullptr;
}

QString listing(const INxFolderMedia *folder, bool recursive)
{
    QStringList names;
    const QList<INxAbstractMedia *> items = folder->items(recursive, true);
    for (const INxAbstractMedia *item : items)
        names.append(item->name());
    return names.join(QLatin1Char(' '));
}

namespace {

void dumpInfo(QTextStream &out, const INxMediaInfo *info)
{
    if (!info) {
        out << " no info";
        return;
    }
    out << " info " << info->kind() << ' ' << info->streamFlags() << ' ' << info->frameCount()
        << ' ' << info->frameRate().num << '/' << info->frameRate().den << ' ' << info->duration()
        << ' ' << bool(info->videoStream()) << bool(info->audioStream()) << bool(info->imageInfo())
        << info->canSeek() << info->demuxer() << ' ' << info->videoBitRate() << ' '
        << info->audioBitRate() << ' ' << info->timecode() << info->reelName()
        << info->textEncoding();
}

void dumpFootage(QTextStream &out, const NxEngineMedia *media)
{
    const NxFootageRecord record = media->footage();
    out << " footage " << int(record.state) << record.reason << ' ' << record.stamp.size << ' '
        << record.stamp.modified << ' ' << record.facts.shot << ' ' << record.facts.durationUs
        << ' ' << NxWorkerMessages::packedStreams(record.facts.streams).toHex() << ' '
        << record.fingerprint.size << ' ' << record.fingerprint.high << ' '
        << record.fingerprint.low << ' ' << int(record.cover) << record.coverReason << ' '
        << int(record.strip) << record.stripReason;
}

void dumpItem(QTextStream &out, const INxAbstractMedia *media)
{
    out << media->mediaId() << " [" << media->name() << "] type " << media->mediaType() << ' '
        << media->subKind() << ' ' << media->state() << ' ' << media->kindCode() << " res "
        << media->resourceId() << media->isResource() << media->isSourceMedia() << " in "
        << (media->parentFolder() ? media->parentFolder()->mediaId() : QString()) << " path "
        << media->sourcePath();
    const auto *item = dynamic_cast<const INxAbstractMediaItem *>(media);
    if (!item)
        return;
    out << '|' << item->filePath() << '|' << ' ' << item->frameCount() << ' '
        << item->frameRate().num << ' ' << item->hasDuration() << item->parts().size()
        << item->isNeedDownload() << ' ' << item->dateCreated().toMSecsSinceEpoch() << ' '
        << item->lastModified().toMSecsSinceEpoch() << ' ' << item->isNew() << ' '
        << item->usedCount() << ' ' << item->inPoint() << ' ' << item->outPoint() << ' '
        << item->isFavourite() << item->favouriteTime().toMSecsSinceEpoch() << ' '
        << item->downloadTime().isValid() << item->audioInfoText() << item->categoryName()
        << item->cameraName() << ' ' << item->listOrder() << ' ' << item->sale() << ' '
        << item->thumbnailStripPath() << item->previewPath() << bool(item->resourceInfo())
        << item->rankId() << item->packType() << ' ' << item->sourceSize() << ' '
        << item->downloadDuration() << ' ' << item->templateSize().width() << ' '
        << item->templateSlotCount();
    dumpInfo(out, item->mediaInfo());
    if (const auto *file = dynamic_cast<const NxEngineMedia *>(item))
        dumpFootage(out, file);
}

void dumpFolder(QTextStream &out, const INxFolderMedia *folder)
{
    out << "folder " << folder->mediaId() << " [" << folder->name() << "] " << folder->folderId()
        << " kind " << folder->kind() << " depth " << folder->depth() << " row "
        << folder->rowInParent() << " owner "
        << (folder->owner() ? folder->owner()->folderId() : -1) << ' ' << folder->toolTipText()
        << ' ' << folder->childFolderCount() << folder->hasChildFolders()
        << folder->isSearchResult() << folder->isSearchFolder() << folder->isCategoryTreeFolder()
        << folder->isLoaded() << folder->isNewnessOrdered() << folder->canFetchMore()
        << folder->canAddMedia() << folder->isSpecial() << folder->needConvert()
        << folder->isSupportKeywordSearch() << folder->isSupportOnlineSearch()
        << folder->isSupportSimilarSearch() << folder->similarPackItems().size() << '\n';
    const QList<INxAbstractMedia *> items = folder->items(false, true);
    for (const INxAbstractMedia *item : items) {
        dumpItem(out, item);
        out << '\n';
    }
    const QList<INxFolderMedia *> children = folder->childFolders();
    for (const INxFolderMedia *child : children)
        dumpFolder(out, child);
}

void dumpClip(QTextStream &out, const NxTimelineMemory &memory, INxClip *clip)
{
    const NxClipPlace place = clip->place();
    out << "clip " << NxTimelineMemory::nodeOf(clip)->id() << " kind " << clip->kind() << " media "
        << clip->mediaId() << " on " << NxTimelineMemory::nodeOf(clip->timeline())->id() << " at "
        << place.track << ' ' << place.position << ' ' << place.length << ' ' << place.inPoint
        << '\n';
    for (const NxTimelineUse &use : memory.uses(clip->mediaId())) {
        out << " use " << NxTimelineMemory::nodeOf(use.timeline)->id() << ' '
            << NxTimelineMemory::nodeOf(use.clip)->id() << '\n';
    }
    if (auto *split = dynamic_cast<INxSplitScreenClip *>(clip)) {
        const QList<INxClip *> inner = split->innerClips();
        for (INxClip *one : inner)
            dumpClip(out, memory, one);
    }
}

void dumpTimeline(QTextStream &out, const NxTimelineMemory &memory, INxTimeline *timeline)
{
    const auto *composite = dynamic_cast<INxCompositeTimeline *>(timeline);
    out << "timeline " << NxTimelineMemory::nodeOf(timeline)->id() << " [" << timeline->name()
        << "] " << timeline->trackCount() << ' ' << timeline->frameCount() << " stands as "
        << (composite ? NxTimelineMemory::nodeOf(composite->outerClip())->id() : 0) << '\n';
    const QList<INxClip *> clips = timeline->clips();
    for (INxClip *clip : clips)
        dumpClip(out, memory, clip);
}

} // namespace

QByteArray projectDump(const NxProjectMemory &memory)
{
    QString text;
    QTextStream out(&text);
    for (int category = 0; category < NXVBLMODEL::MediaCategoryCount; ++category) {
        const NxEngineCategory *one = memory.category(category);
        out << "category " << category << ' ' << one->isTimelineMedia() << one->isTimelineResource()
            << '\n';
        dumpFolder(out, one->root());
    }
    const QList<INxTimeline *> timelines = memory.timelines()->timelines();
    for (INxTimeline *timeline : timelines)
        dumpTimeline(out, *memory.timelines(), timeline);
    return text.toUtf8();
}
