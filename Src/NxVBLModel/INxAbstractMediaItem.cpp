// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxAbstractMediaItem.h>

INxAbstractMediaItem::~INxAbstractMediaItem() = default;

QString INxAbstractMediaItem::filePath() const
{
    return {};
}

const INxMediaInfo *INxAbstractMediaItem::mediaInfo() const
{
    return nullptr;
}

bool INxAbstractMediaItem::isUnavailable() const
{
    return false;
}

QString INxAbstractMediaItem::unavailableReason() const
{
    return {};
}

qint64 INxAbstractMediaItem::frameCount() const
{
    return 0;
}

NxRational INxAbstractMediaItem::frameRate() const
{
    return {};
}

bool INxAbstractMediaItem::hasDuration() const
{
    return true;
}

QList<INxMediaPart *> INxAbstractMediaItem::parts() const
{
    return {};
}

bool INxAbstractMediaItem::isNeedDownload() const
{
    return false;
}

QDateTime INxAbstractMediaItem::dateCreated() const
{
    return {};
}

QDateTime INxAbstractMediaItem::lastModified() const
{
    return {};
}

bool INxAbstractMediaItem::isNew() const
{
    return false;
}

int INxAbstractMediaItem::usedCount() const
{
    return 0;
}

qint64 INxAbstractMediaItem::inPoint() const
{
    return 0;
}

qint64 INxAbstractMediaItem::outPoint() const
{
    return 0;
}

bool INxAbstractMediaItem::isFavourite() const
{
    return false;
}

QDateTime INxAbstractMediaItem::favouriteTime() const
{
    return {};
}

QDateTime INxAbstractMediaItem::downloadTime() const
{
    return {};
}

QString INxAbstractMediaItem::audioInfoText() const
{
    return {};
}

QString INxAbstractMediaItem::categoryName() const
{
    return {};
}

QString INxAbstractMediaItem::cameraName() const
{
    return {};
}

int INxAbstractMediaItem::listOrder() const
{
    return 0;
}

int INxAbstractMediaItem::sale() const
{
    return 0;
}

QString INxAbstractMediaItem::thumbnailStripPath() const
{
    return {};
}

QString INxAbstractMediaItem::previewPath() const
{
    return {};
}

void INxAbstractMediaItem::requestResource(const QString &, int, int) {}

const INxResourceInfo *INxAbstractMediaItem::resourceInfo() const
{
    return nullptr;
}

bool INxAbstractMediaItem::isTrackable(EPrjTemplateInteractionType) const
{
    return true;
}

int INxAbstractMediaItem::rankId() const
{
    return 0;
}

QString INxAbstractMediaItem::packType() const
{
    return {};
}

qint64 INxAbstractMediaItem::sourceSize() const
{
    return -1;
}

qint64 INxAbstractMediaItem::downloadDuration() const
{
    return 0;
}

QSize INxAbstractMediaItem::templateSize() const
{
    return {};
}

int INxAbstractMediaItem::templateSlotCount() const
{
    return 0;
}
