// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/NxStreamInfo.h>

/// Media that answer what a test wrote into them.

struct ScriptedInfo final : INxMediaInfo
{
    int kind() const override { return infoKind; }
    int streamFlags() const override { return flags; }
    qint64 frameCount() const override { return frames; }
    NxRational frameRate() const override { return rate; }
    const NxVideoStreamInfo *videoStream() const override { return &video; }
    const NxImageInfo *imageInfo() const override { return &image; }

    int infoKind = NXVBLMODEL::mikVideo;
    int flags = NXVBLMODEL::sfNone;
    qint64 frames = 0;
    NxRational rate;
    NxVideoStreamInfo video;
    NxImageInfo image;
};

/// A folder, a tile, or whatever else is no media item.
struct ScriptedPlain final : INxAbstractMedia
{
    explicit ScriptedPlain(NXVBLMODEL::NxMediaType mediaType, const QString &called = QString())
        : type(mediaType),
          title(called)
    {
    }
    NXVBLMODEL::NxMediaType mediaType() const override { return type; }
    QString name() const override { return title; }

    NXVBLMODEL::NxMediaType type;
    QString title;
};

struct ScriptedItem final : INxAbstractMediaItem
{
    explicit ScriptedItem(NXVBLMODEL::NxMediaType mediaType = NXVBLMODEL::mtVideo,
                          const QString &called = QString())
        : type(mediaType),
          title(called)
    {
    }

    NXVBLMODEL::NxMediaType mediaType() const override { return type; }
    int state() const override { return licence; }
    int kindCode() const override { return code; }
    QString name() const override { return title; }
    QString mediaId() const override { return id; }
    QString sourcePath() const override { return path; }
    INxFolderMedia *parentFolder() const override { return home; }
    bool isResource() const override { return resource; }
    bool isSourceMedia() const override { return sourceMedia; }
    const INxMediaInfo *mediaInfo() const override { return hasInfo ? &info : nullptr; }
    bool isUnavailable() const override { return unavailable; }
    qint64 frameCount() const override { return frames; }
    NxRational frameRate() const override { return rate; }
    bool hasDuration() const override { return lasts; }
    QDateTime dateCreated() const override { return created; }
    QDateTime lastModified() const override { return modified; }
    bool isNew() const override { return flaggedNew; }
    int usedCount() const override { return used; }
    qint64 inPoint() const override { return in; }
    qint64 outPoint() const override { return out; }
    bool isFavourite() const override { return favourite; }
    QDateTime favouriteTime() const override { return favoured; }
    QDateTime downloadTime() const override { return downloaded; }
    QString audioInfoText() const override { return audio; }
    QString categoryName() const override { return category; }
    QString cameraName() const override { return camera; }
    int listOrder() const override { return place; }
    int sale() const override { return sold; }

    NXVBLMODEL::NxMediaType type;
    QString title;
    int code = NXVBLMODEL::mkcNone;
    QString id;
    QString path;
    int licence = NXVBLMODEL::lsFree;
    INxFolderMedia *home = nullptr; // Not owned.
    bool resource = false;
    bool sourceMedia = false;
    bool hasInfo = true;
    ScriptedInfo info;
    bool unavailable = false;
    qint64 frames = 0;
    NxRational rate;
    bool lasts = true;
    QDateTime created;
    QDateTime modified;
    bool flaggedNew = false;
    int used = 0;
    qint64 in = 0;
    qint64 out = 0;
    bool favourite = false;
    QDateTime favoured;
    QDateTime downloaded;
    QString audio;
    QString category;
    QString camera;
    int place = 0;
    int sold = 0;
};
