// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxGroupMedia.h>
#include <NxVBLModel/INxMediaInfo.h>

/// What the gallery shows: media that live in memory and answer what is written into them.

struct GalleryInfo final : INxMediaInfo
{
    int kind() const override { return infoKind; }
    int streamFlags() const override { return flags; }
    qint64 frameCount() const override { return frames; }
    NxRational frameRate() const override { return rate; }

    int infoKind = NXVBLMODEL::mikVideo;
    int flags = NXVBLMODEL::sfVideo;
    qint64 frames = 0;
    NxRational rate{25, 1};
};

struct GalleryItem final : INxAbstractMediaItem
{
    explicit GalleryItem(NXVBLMODEL::NxMediaType mediaType = NXVBLMODEL::mtVideoAudio,
                         const QString &called = QString())
        : type(mediaType),
          title(called)
    {
    }

    NXVBLMODEL::NxMediaType mediaType() const override { return type; }
    int subKind() const override { return finerKind; }
    int kindCode() const override { return code; }
    int state() const override { return licence; }
    QString name() const override { return title; }
    QString filePath() const override { return path; }
    bool isResource() const override { return resource; }
    const INxMediaInfo *mediaInfo() const override { return hasInfo ? &info : nullptr; }
    bool isUnavailable() const override { return unavailable; }
    int usedCount() const override { return used; }

    NXVBLMODEL::NxMediaType type;
    QString title;
    int finerKind = NXVBLMODEL::mskNone;
    int code = NXVBLMODEL::mkcNone;
    int licence = NXVBLMODEL::lsFree;
    QString path = QStringLiteral("/Footage/clip.mov");
    bool resource = false;
    bool hasInfo = true;
    GalleryInfo info;
    bool unavailable = false;
    int used = 0;
    int hue = -1; ///< Of its cover, in degrees; below 0: it has none.
    bool hasProxy = false;
    int progress = -1; ///< Percent; below 0: nothing is under way.
};

class GalleryFolder final : public INxFolderMedia
{
public:
    GalleryFolder(const QString &name, const QList<INxAbstractMedia *> &items)
        : m_name(name),
          m_items(items)
    {
    }

    QString name() const override { return m_name; }
    int folderId() const override { return NXVBLMODEL::fidFirstUserFolder; }
    QList<INxAbstractMedia *> items(bool, bool) const override { return m_items; }

private:
    const QString m_name;
    const QList<INxAbstractMedia *> m_items; // Not owned.
};

/// A header that cannot be folded.
class GalleryHeader final : public INxGroupMedia
{
public:
    GalleryHeader(const QString &title, int count) : m_title(title), m_count(count) {}

    QString name() const override { return m_title; }
    void setTitle(const QString &) override {}
    QString groupKey() const override { return {}; }
    void setGroupKey(const QString &) override {}
    QList<INxAbstractMedia *> members() const override { return {}; }
    void setMembers(const QList<INxAbstractMedia *> &) override {}
    void addMember(INxAbstractMedia *) override {}
    void insertMember(int, INxAbstractMedia *) override {}
    void removeMemberAt(int) override {}
    void removeMember(INxAbstractMedia *) override {}
    bool canFold() const override { return false; }
    bool isExpanded() const override { return true; }
    void setExpanded(bool) override {}
    int itemCount() const override { return m_count; }

private:
    const QString m_title;
    const int m_count;
};
