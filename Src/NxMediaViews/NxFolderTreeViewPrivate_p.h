// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NxFolderTreeDrop_p.h"

#include <NxVBLModel/INxMediaItemEventObserver.h>
#include <NxVBLModel/NxObserverConnector.h>
#include <NxWidgets/INxSkinEventHandler.h>

#include <QElapsedTimer>
#include <QHash>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QSet>

#include <memory>

class NxFolderMediaManagerPresenter;
class NxFolderTreeView;
class NxMediaCategoryPresenter;
class NxFolderRows;

/// Follows a category for its tree, and knows which folders are unfolded.
///
/// What is unfolded is the view's to tell, but views forget it whenever rows go: it is written down
/// before they do, by folder, and holds again for rows that come.
class NxFolderTreeViewPrivate : public INxSkinEventHandler, public INxMediaItemEventObserver
{
    Q_DECLARE_TR_FUNCTIONS(NxFolderTreeView)
public:
    explicit NxFolderTreeViewPrivate(NxFolderTreeView *view);
    ~NxFolderTreeViewPrivate() override;

    void setPresenter(NxMediaCategoryPresenter *wanted);
    /// Null without a category, like the next.
    [[nodiscard]] NxFolderMediaManagerPresenter *folders() const;
    [[nodiscard]] INxFolderMedia *currentFolder() const;
    /// Whether the user may rename, move and remove it.
    [[nodiscard]] static bool isChangeable(const INxFolderMedia *folder);

    void pick(INxFolderMedia *folder);
    /// The row of the current folder becomes the current one, and visible.
    void markCurrentFolder();
    void newFolder();
    void editName(INxFolderMedia *folder);
    /// Shows a sentence when what goes on is over.
    void tellLater(const QString &text) const;
    void retranslate() const;

    [[nodiscard]] QSet<int> expandedFolders();
    void setExpandedFolders(const QSet<int> &folderIds);

    /// The row that typed letters lead to; invalid when no name begins with them.
    [[nodiscard]] QModelIndex search(const QString &typed);

    void OnSkinChangedEvent(INxSkinEvent *event) override;
    // How many media a folder holds stands in its row.
    void onAfterAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onAfterRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onAfterMoveItemEvent(INxFolderMedia *from, INxFolderMedia *to,
                              INxAbstractMedia *item) override;
    void onMediaStateChangedEvent(INxAbstractMedia *item) override;

    NxFolderTreeDrop drop;
    QPointer<NxMediaCategoryPresenter> presenter; // Not owned.

private:
    void followModel();
    void followPresenter();
    void unfollowPresenter();
    void letGo();
    void wear();
    void repaintRows() const;
    void expandParents(const QModelIndex &index);
    void noteExpanded(const QModelIndex &index);
    void noteExpandedBelow(const QModelIndex &parent);
    void restoreExpanded(const QModelIndex &index);
    void restoreExpandedBelow(const QModelIndex &parent);
    void rowsCame(const QModelIndex &parent, int first, int last);
    void rename(INxFolderMedia *folder, const QString &name);
    [[nodiscard]] bool tellIfReadOnly() const;
    [[nodiscard]] QString refusal(const INxFolderMedia *folder, const QString &name) const;
    void finishEditing();

    NxFolderTreeView *const q; // Not owned.
    NxFolderRows *const m_model; // A child of the view.
    QHash<int, QSet<int>> m_expanded; // Of each category that was shown.
    int m_category = 0; // The one that is shown.
    std::unique_ptr<NxObserverConnector> m_items;
    QPersistentModelIndex m_edited; // Whose name is being edited, or was last.
    QString m_typed;
    QElapsedTimer m_typing; // Since the last letter.
};
