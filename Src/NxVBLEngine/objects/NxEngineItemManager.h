// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLModel/INxMediaItemManager.h>

#include <NxVBLModel/INxFolderMedia.h>

#include <QPointer>
#include <QVector>

class NxEngineCategory;
class NxEngineFolder;
class NxEngineItem;
class NxEngineMedia;
class NxProjectMemory;
struct NxMediaSeed;
struct NxChange;

/// Carries out what the user does with the items of a category. Each call is one undo step.
class NXVBLENGINE_TEST_EXPORT NxEngineItemManager final : public INxMediaItemManager
{
public:
    static constexpr int MaximumNameLength = 255;

    explicit NxEngineItemManager(NxEngineCategory *category);
    ~NxEngineItemManager() override;

    NXVBLMODEL::NxMediaCategoryType categoryType() const override;
    bool registerObserver(INxMediaItemEventObserver *observer) override;
    void unregisterObserver(INxMediaItemEventObserver *observer) override;
    /// Items that stand elsewhere in the category are moved; removed ones come back; items of
    /// other categories that are real files are filed as media of their own.
    bool addMediaItems(const QList<INxAbstractMedia *> &items) override;
    bool addMediaItems(INxFolderMedia *folder, const QList<INxAbstractMedia *> &items) override;
    bool removeMediaItems(INxFolderMedia *folder, const QList<INxAbstractMedia *> &items) override;
    bool moveMediaItems(INxFolderMedia *from, INxFolderMedia *to,
                        const QList<INxAbstractMedia *> &items) override;
    bool renameMediaItem(INxAbstractMedia *item, const QString &name) override;
    bool setFavourite(INxAbstractMedia *item, bool favourite) override;
    bool relinkMedia(INxAbstractMedia *item, const QString &path) override;
    qint64 readDuration(const QString &path) const override;
    INxFolderMedia *currentRoot() const override { return m_currentRoot; }
    void refresh(INxFolderMedia *folder) override;
    void resetResourceLoader(INxFolderMedia *folder) override;
    INxMediaManager *mediaManager() const override;

private:
    [[nodiscard]] NxProjectMemory *memory() const;
    [[nodiscard]] NxEngineItem *own(INxAbstractMedia *item) const;
    [[nodiscard]] NxEngineMedia *ownMedia(INxAbstractMedia *item) const;
    [[nodiscard]] NxEngineFolder *ownFolder(INxFolderMedia *folder) const;
    /// The media if it is one of this project: one that stands here, or a removed one.
    [[nodiscard]] NxEngineMedia *knownMedia(INxAbstractMedia *item) const;
    bool addKnown(NxEngineFolder *folder, NxEngineMedia *media);
    bool revive(NxEngineFolder *folder, NxEngineMedia *media);
    /// What a media of another kind becomes here. False for what has no file.
    static bool appendCopy(QVector<NxMediaSeed> *copies, INxAbstractMedia *item);
    bool moveOne(NxEngineFolder *to, NxEngineMedia *media);

    NxEngineCategory *const m_category; // Not owned.
    QPointer<INxFolderMedia> m_currentRoot;
};
