// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxMediaFolderEventObserver.h>

#include <QAbstractItemModel>
#include <QPointer>

#include <memory>
#include <vector>

class INxFolderMediaManager;
class NxObserverConnector;

/// The folders below one root folder, as a tree of one column.
///
/// It keeps no copy: every answer comes from the folders themselves, and each index carries its
/// `INxFolderMedia *` (see folderAt()). The root has no row, its children are the top-level rows.
/// Rows come and go with the events of the folder managers it is subscribed to; what happens to a
/// folder costs no more in a larger tree. A root that dies leaves an empty model, after a reset.
///
/// Names are drawn by the view, so of the roles only the tooltip has an answer. A drop is accepted
/// and changes nothing here: the view asks the folder presenter to move folders. GUI thread only.
class NXMEDIALIBRARY_EXPORT NxMediaTreeModel : public QAbstractItemModel,
                                               public INxMediaFolderEventObserver
{
    Q_OBJECT
public:
    explicit NxMediaTreeModel(QObject *parent = nullptr);
    ~NxMediaTreeModel() override;

    /// Shows what is below this folder: one reset that empties the model, one that fills it. The
    /// folder is not owned; null empties the model.
    void load(INxFolderMedia *root);
    /// Empties the model in one reset.
    void clear();

    /// Both must be on, as they are at first, for tooltips to be answered.
    void setToolTipEnable(bool enable);
    void setToolTipVisible(bool visible);

    /// The index of a folder, looked for at `start` and below it; invalid when it is not there, and
    /// for the root. O(depth) where folders and their parents agree on who stands where; otherwise
    /// every folder is visited.
    [[nodiscard]] QModelIndex findIndex(INxFolderMedia *folder,
                                        const QModelIndex &start = {}) const;

    /// Follows the folder events of one more manager, which is not owned and may die first. Null,
    /// and a manager that refuses, are ignored.
    void subscribeFoderManager(INxFolderMediaManager *manager);
    /// Follows no manager any more.
    void unSubscribeFoderManager();

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    using QObject::parent;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

    /// A parent that is not in the tree leaves one error line and changes nothing, as does a change
    /// that begins inside another one.
    void onBeforeAddFolderEvent(INxFolderMedia *parent, const int &first, const int &last) override;
    void onAfterAddFolderEvent() override;
    void onBeforeRemoveFolderEvent(INxFolderMedia *parent, const int &first,
                                   const int &last) override;
    void onAfterRemoveFolderEvent() override;
    void onBeforeMoveFolderEvent() override;
    void onAfterMoveFolderEvent() override;
    /// Repaints the folder and each folder that it stands in.
    void onFolderStateChangedEvent(INxFolderMedia *folder) override;

private:
    enum class PendingChange { None, Insert, Remove };
    enum class Place { Below, Elsewhere, Unclear };

    [[nodiscard]] INxFolderMedia *shownFolder(const QModelIndex &index) const;
    [[nodiscard]] Place placeOf(const INxFolderMedia *folder, const INxFolderMedia *top) const;
    [[nodiscard]] QModelIndex searchBelow(INxFolderMedia *top, const INxFolderMedia *folder) const;
    [[nodiscard]] bool canBegin(const INxFolderMedia *parent, const QModelIndex &index,
                                const char *function) const;
    [[nodiscard]] bool takePending(PendingChange change);
    void resetTo(QPointer<INxFolderMedia> root);

    QPointer<INxFolderMedia> m_root; // Not owned.
    std::vector<std::unique_ptr<NxObserverConnector>> m_connectors;
    PendingChange m_pendingChange = PendingChange::None; // Begun, not ended yet.
    bool m_isPendingOutdated = false; // A reset came after it was begun.
    bool m_toolTipEnable = true;
    bool m_toolTipVisible = true;
};
