// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/INxMediaPart.h>
#include <NxVBLModel/INxSecondaryMedia.h>
#include <NxVBLModel/INxStockMediaItem.h>
#include <NxVBLModel/INxVCGClassifyMediaItem.h>
#include <NxVBLModel/INxVCGMediaItem.h>
#include <NxVBLModel/NxStreamInfo.h>

#include <optional>

/// Media that answer exactly what a test writes into their fields.
struct UtilsInfo final : INxMediaInfo
{
    explicit UtilsInfo(int infoKind = NXVBLMODEL::mikUnknown, int streams = NXVBLMODEL::sfNone)
        : k(infoKind),
          flags(streams)
    {
    }
    int kind() const override { return k; }
    int streamFlags() const override { return flags; }
    qint64 frameCount() const override { return frames; }
    NxRational frameRate() const override { return rate; }
    qint64 duration() const override { return length; }
    const NxVideoStreamInfo *videoStream() const override { return video ? &*video : nullptr; }
    const NxAudioStreamInfo *audioStream() const override { return audio ? &*audio : nullptr; }
    const NxImageInfo *imageInfo() const override { return image ? &*image : nullptr; }

    int k;
    int flags;
    qint64 frames = 0;
    NxRational rate;
    qint64 length = 0;
    std::optional<NxVideoStreamInfo> video;
    std::optional<NxAudioStreamInfo> audio;
    std::optional<NxImageInfo> image;
};

struct UtilsPart final : INxMediaPart
{
    explicit UtilsPart(int partKindCode) : k(partKindCode) {}
    int partKind() const override { return k; }
    int k;
};

/// A media item on any of the item interfaces.
template<typename Base>
struct UtilsItemOf : Base
{
    explicit UtilsItemOf(int mediaTypeCode = NXVBLMODEL::mtVideo)
        : type(NXVBLMODEL::NxMediaType(mediaTypeCode))
    {
    }
    NXVBLMODEL::NxMediaType mediaType() const override { return type; }
    int subKind() const override { return sub; }
    int kindCode() const override { return code; }
    int state() const override { return licence; }
    QString name() const override { return shownName; }
    QString filePath() const override { return file; }
    bool isResource() const override { return resource; }
    bool isSourceMedia() const override { return source; }
    INxFolderMedia *parentFolder() const override { return parent; }
    const INxMediaInfo *mediaInfo() const override { return info; }
    bool isUnavailable() const override { return unavailable; }
    qint64 frameCount() const override { return frames; }
    NxRational frameRate() const override { return rate; }
    int usedCount() const override { return used; }
    bool isNeedDownload() const override { return needDownload; }
    QSize templateSize() const override { return slotsSize; }
    int templateSlotCount() const override { return slotCount; }
    QList<INxMediaPart *> parts() const override { return itsParts; }

    NXVBLMODEL::NxMediaType type;
    int sub = NXVBLMODEL::mskNone;
    int code = NXVBLMODEL::mkcNone;
    int licence = NXVBLMODEL::lsFree;
    QString shownName;
    QString file;
    bool resource = false;
    bool source = false;
    INxFolderMedia *parent = nullptr;
    const INxMediaInfo *info = nullptr;
    bool unavailable = false;
    qint64 frames = 0;
    NxRational rate;
    int used = 0;
    bool needDownload = false;
    QSize slotsSize;
    int slotCount = 0;
    QList<INxMediaPart *> itsParts;
};

using UtilsItem = UtilsItemOf<INxAbstractMediaItem>;

struct UtilsSecondaryItem final : UtilsItem, INxSecondaryMedia
{
    explicit UtilsSecondaryItem(int kind) : UtilsItem(NXVBLMODEL::mtElement), itsSecondaryKind(kind)
    {
    }
    int secondaryKind() const override { return itsSecondaryKind; }
    int itsSecondaryKind;
};

struct UtilsStockItem : UtilsItemOf<INxStockMediaItem>
{
    using UtilsItemOf::UtilsItemOf;
    QSize frameSize() const override { return size; }
    QString title() const override { return itsTitle; }
    QString tags() const override { return itsTags; }
    QSize size;
    QString itsTitle;
    QString itsTags;
};

using UtilsVcgItem = UtilsItemOf<INxVCGMediaItem>;

struct UtilsClassifyItem final : UtilsItemOf<INxVCGClassifyMediaItem>
{
    explicit UtilsClassifyItem(qint64 id)
        : UtilsItemOf<INxVCGClassifyMediaItem>(NXVBLMODEL::mtImage),
          itsId(id)
    {
        sub = NXVBLMODEL::mskStockClassification;
        resource = true;
    }
    qint64 classifyId() const override { return itsId; }
    qint64 itsId;
};

/// A listed object that is no media item: a header, a tile, or something odd.
struct UtilsMedia final : INxAbstractMedia
{
    explicit UtilsMedia(int mediaTypeCode) : type(NXVBLMODEL::NxMediaType(mediaTypeCode)) {}
    NXVBLMODEL::NxMediaType mediaType() const override { return type; }
    int subKind() const override { return sub; }
    QString name() const override { return shownName; }
    bool isResource() const override { return resource; }
    bool isSourceMedia() const override { return resource; }
    INxFolderMedia *parentFolder() const override { return parent; }
    NXVBLMODEL::NxMediaType type;
    int sub = 0;
    QString shownName;
    bool resource = false;
    INxFolderMedia *parent = nullptr;
};

/// A folder that lists `own`, then, when asked for the folders below, those with their items.
struct UtilsFolder final : INxFolderMedia
{
    explicit UtilsFolder(const QString &folderName = {}, UtilsFolder *above = nullptr)
        : shownName(folderName),
          parent(above)
    {
        if (above)
            above->children.append(this);
    }
    QString name() const override { return shownName; }
    INxFolderMedia *parentFolder() const override { return parent; }
    int folderId() const override { return NXVBLMODEL::fidFirstUserFolder; }
    bool canAddMedia() const override { return takesMedia; }
    bool isSearchFolder() const override { return search; }
    bool needConvert() const override { return old; }
    QList<INxAbstractMedia *> items(bool recursive, bool mediaOnly) const override
    {
        QList<INxAbstractMedia *> all = own;
        for (UtilsFolder *child : children) {
            if (!mediaOnly)
                all.append(child);
            if (recursive)
                all.append(child->items(true, mediaOnly));
        }
        return all;
    }

    QString shownName;
    UtilsFolder *parent = nullptr;
    QList<UtilsFolder *> children;
    QList<INxAbstractMedia *> own;
    bool takesMedia = false;
    bool search = false;
    bool old = false;
};
