// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/NxStreamInfo.h>

#include <algorithm>
#include <memory>
#include <vector>

/// What a file would tell.
struct FakeInfo final : INxMediaInfo
{
    int kind() const override { return infoKind; }
    int streamFlags() const override { return flags; }
    qint64 frameCount() const override { return frames; }
    NxRational frameRate() const override { return rate; }
    qint64 duration() const override { return length; }
    const NxVideoStreamInfo *videoStream() const override { return hasVideo ? &video : nullptr; }
    const NxAudioStreamInfo *audioStream() const override { return hasAudio ? &audio : nullptr; }
    const NxImageInfo *imageInfo() const override { return hasImage ? &image : nullptr; }
    QString timecode() const override { return clock; }
    QString reelName() const override { return reel; }
    QString textEncoding() const override { return encoding; }

    int infoKind = NXVBLMODEL::mikVideo;
    int flags = NXVBLMODEL::sfVideo;
    qint64 frames = 0;
    NxRational rate;
    NxVideoStreamInfo video;
    NxAudioStreamInfo audio;
    NxImageInfo image;
    bool hasVideo = true;
    bool hasAudio = true;
    bool hasImage = true;
    qint64 length = 0; ///< As duration().
    QString clock;
    QString reel;
    QString encoding;
};

/// A media of a name and a path, without a file; it answers what a test wrote into it.
class FakeItem final : public INxAbstractMediaItem
{
public:
    FakeItem(INxFolderMedia *folder, const QString &path) : m_folder(folder), m_path(path) {}

    NXVBLMODEL::NxMediaType mediaType() const override { return type; }
    int state() const override { return licence; }
    QString name() const override { return m_path.section(QLatin1Char('/'), -1); }
    QString sourcePath() const override { return resource ? QString() : m_path; }
    INxFolderMedia *parentFolder() const override { return m_folder; }
    bool isResource() const override { return resource; }
    const INxMediaInfo *mediaInfo() const override { return &info; }
    QDateTime dateCreated() const override { return created; }
    QDateTime lastModified() const override { return modified; }
    int usedCount() const override { return used; }
    qint64 inPoint() const override { return in; }
    qint64 outPoint() const override { return out; }
    bool isFavourite() const override { return favourite; }
    QDateTime favouriteTime() const override { return favoured; }
    QDateTime downloadTime() const override { return downloaded; }
    QString audioInfoText() const override { return sound; }
    QString categoryName() const override { return category; }
    QString cameraName() const override { return camera; }
    int listOrder() const override { return place; }
    int sale() const override { return sold; }
    qint64 sourceSize() const override { return size; }
    QString mediaId() const override { return QLatin1String("id-") + m_path; }
    bool isUnavailable() const override { return !trouble.isEmpty(); }
    QString unavailableReason() const override { return trouble; }

    NXVBLMODEL::NxMediaType type = NXVBLMODEL::mtVideoAudio;
    int licence = NXVBLMODEL::lsNone;
    bool resource = false;
    FakeInfo info;
    QDateTime created;
    QDateTime modified;
    int used = 0;
    qint64 in = 0;
    qint64 out = 0;
    bool favourite = false;
    QDateTime favoured;
    QDateTime downloaded;
    QString sound;
    QString category;
    QString camera;
    int place = 0;
    int sold = 0;
    qint64 size = -1;
    QString trouble; ///< Why it cannot be used; empty when it can.

private:
    INxFolderMedia *const m_folder; // Not owned.
    const QString m_path;
};

/// A folder that holds fake media and fake folders.
class FakeFolder final : public INxFolderMedia
{
public:
    explicit FakeFolder(const QString &name, int kind = NXVBLMODEL::fkNone,
                        FakeFolder *parent = nullptr)
        : m_name(name),
          m_kind(kind),
          m_parent(parent)
    {
    }

    FakeFolder *addFolder(const QString &name, int kind = NXVBLMODEL::fkNone)
    {
        m_children.push_back(std::make_unique<FakeFolder>(name, kind, this));
        return m_children.back().get();
    }
    FakeItem *addItem(const QString &path)
    {
        m_items.push_back(std::make_unique<FakeItem>(this, path));
        return m_items.back().get();
    }

    QString name() const override { return m_name; }
    int kind() const override { return m_kind; }
    bool isKind(int folderKind) const override { return folderKind == m_kind; }
    int folderId() const override { return m_kind; }
    INxMediaManager *mediaManager() const override
    {
        return managed || !m_parent ? managed : m_parent->mediaManager();
    }
    INxMediaManager *managed = nullptr; ///< Null: as the parent says. Not owned.
    /// A folder without a parent is a section, and so is what stands in a root.
    bool isRoot() const { return m_kind == rootKind; }
    static constexpr int rootKind = -1;
    int depth() const override
    {
        if (isRoot())
            return 0;
        return m_parent ? m_parent->depth() + 1 : 1;
    }
    INxFolderMedia *parentFolder() const override { return m_parent; }
    INxFolderMedia *owner() const override
    {
        const bool isSection = !m_parent || m_parent->isRoot();
        return isSection ? const_cast<FakeFolder *>(this) : m_parent->owner();
    }
    QList<INxFolderMedia *> childFolders() const override
    {
        QList<INxFolderMedia *> folders;
        for (const auto &child : m_children)
            folders.append(child.get());
        return folders;
    }
    QList<INxAbstractMedia *> items(bool recursive, bool) const override
    {
        QList<INxAbstractMedia *> result;
        for (const auto &item : m_items)
            result.append(item.get());
        for (const auto &child : m_children)
            result += recursive ? child->items(true, true) : QList<INxAbstractMedia *>();
        return result;
    }
    /// The media dies.
    void destroy(const FakeItem *dying)
    {
        m_items.erase(std::find_if(m_items.begin(), m_items.end(),
                                   [dying](const auto &item) { return item.get() == dying; }));
    }
    INxAbstractMedia *findMediaByPath(const QString &path, bool recursive) const override
    {
        const QList<INxAbstractMedia *> all = items(recursive, true);
        for (INxAbstractMedia *item : all) {
            if (item->sourcePath() == path)
                return item;
        }
        return nullptr;
    }

private:
    const QString m_name;
    const int m_kind;
    FakeFolder *const m_parent;
    std::vector<std::unique_ptr<FakeFolder>> m_children;
    std::vector<std::unique_ptr<FakeItem>> m_items;
};

/// The folders of a category, made by the test.
class FakeFolders final : public INxFolderMediaManager
{
public:
    INxFolderMedia *rootFolder() override { return &root; }
    INxFolderMedia *folder(int folderId) override
    {
        return folderId == NXVBLMODEL::fidRoot ? root.childFolders().value(0) : nullptr;
    }

    FakeFolder root{QString(), FakeFolder::rootKind};
};
