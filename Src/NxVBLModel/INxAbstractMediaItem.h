// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxRational.h>
#include <NxVBLModel/INxAbstractMedia.h>
#include <NxVBLModel/NxInteractionTypes.h>

#include <QDateTime>
#include <QSize>

class INxMediaInfo;
class INxMediaPart;
class INxResourceInfo;

/// A media item: a file of the project, or a resource of the library.
///
/// Every query has a neutral default, so an engine overrides what it knows.
class NXVBLMODEL_EXPORT INxAbstractMediaItem : public INxAbstractMedia
{
public:
    ~INxAbstractMediaItem() override;

    /// The file, or empty when there is none (a resource that is not downloaded).
    [[nodiscard]] virtual QString filePath() const;
    /// The facts; null when nothing is known. Owned by the item.
    [[nodiscard]] virtual const INxMediaInfo *mediaInfo() const;
    /// True when the file is offline, unreadable or undecodable: stream details must not be
    /// read. False while it is not read yet.
    [[nodiscard]] virtual bool isUnavailable() const;
    /// Why the item is unavailable, as a sentence for the user; empty when it is not.
    [[nodiscard]] virtual QString unavailableReason() const;
    /// Frames; asked when there is no media information.
    [[nodiscard]] virtual qint64 frameCount() const;
    /// Frames a second; may be 0/0.
    [[nodiscard]] virtual NxRational frameRate() const;
    /// False for what has no length, such as a picture.
    [[nodiscard]] virtual bool hasDuration() const;
    /// Parts of a composed element. Owned by the item.
    [[nodiscard]] virtual QList<INxMediaPart *> parts() const;
    /// True when the resource must be downloaded before it can be used.
    [[nodiscard]] virtual bool isNeedDownload() const;

    /// When the footage was made; UTC, may be invalid.
    [[nodiscard]] virtual QDateTime dateCreated() const;
    /// When the file was last changed; UTC, may be invalid.
    [[nodiscard]] virtual QDateTime lastModified() const;
    /// True for a resource that the service flags as new.
    [[nodiscard]] virtual bool isNew() const;
    /// How often timelines use the item.
    [[nodiscard]] virtual int usedCount() const;
    /// Frames at frameRate().
    [[nodiscard]] virtual qint64 inPoint() const;
    /// Frames at frameRate().
    [[nodiscard]] virtual qint64 outPoint() const;
    [[nodiscard]] virtual bool isFavourite() const;
    /// When it became a favourite; invalid when it is none.
    [[nodiscard]] virtual QDateTime favouriteTime() const;
    [[nodiscard]] virtual QDateTime downloadTime() const;
    /// Sound format in words, e.g. "48000 Hz, 2 ch".
    [[nodiscard]] virtual QString audioInfoText() const;
    [[nodiscard]] virtual QString categoryName() const;
    /// Maker and model of the camera; empty when unknown.
    [[nodiscard]] virtual QString cameraName() const;
    /// Place in the service's own order.
    [[nodiscard]] virtual int listOrder() const;
    [[nodiscard]] virtual int sale() const;

    /// A picture of frames 144 px wide, stacked every 81 px; empty when there is none.
    [[nodiscard]] virtual QString thumbnailStripPath() const;
    /// A local file that shows the resource; empty when there is none.
    [[nodiscard]] virtual QString previewPath() const;
    /// Asks the service to fetch something (NXVBLMODEL::NxResourceRequest,
    /// NXVBLMODEL::NxDownloadKind); answers by download events.
    virtual void requestResource(const QString &text, int what, int downloadKind);
    /// What the service says about a resource; null for files of the project. Owned by the item.
    [[nodiscard]] virtual const INxResourceInfo *resourceInfo() const;
    /// False: meeting this template raises no usage event.
    [[nodiscard]] virtual bool isTrackable(EPrjTemplateInteractionType interaction) const;
    [[nodiscard]] virtual int rankId() const;
    [[nodiscard]] virtual QString packType() const;
    /// Bytes of the source file; -1 when unknown.
    [[nodiscard]] virtual qint64 sourceSize() const;
    /// Milliseconds that the download took; 0 when there was none.
    [[nodiscard]] virtual qint64 downloadDuration() const;
    /// Picture size of a project template, px; invalid for everything else.
    [[nodiscard]] virtual QSize templateSize() const;
    /// How many of the user's media a project template takes.
    [[nodiscard]] virtual int templateSlotCount() const;
};

Q_DECLARE_METATYPE(INxAbstractMediaItem *)
Q_DECLARE_METATYPE(QList<INxAbstractMediaItem *>)
