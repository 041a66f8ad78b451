// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxMediaViewsExport.h>
#include <NxVBLModel/INxFolderMedia.h>

#include <QSet>
#include <QStringList>
#include <QTreeView>

#include <memory>

class NxFolderTreeViewPrivate;
class NxMediaCategoryPresenter;
class QDrag;

/// The folders of a category beside its media, where the user picks, makes, renames, moves and
/// removes folders, and drops media and files.
///
/// The view makes its own model and delegate. The current folder of the category is the current
/// row, and can be seen. A folder is picked with a click or the keyboard, which leaves a search for
/// similar media. Sections can be neither renamed, moved nor removed; nothing can be changed while
/// the project is read-only.
///
/// Folders are dragged within the view; media from anywhere in the panel go to the folder that they
/// are dropped on. Each is one undo step. Wears the colours of the skin. GUI thread only; nothing
/// here touches a disk.
class NXMEDIAVIEWS_EXPORT NxFolderTreeView : public QTreeView
{
    Q_OBJECT
public:
    explicit NxFolderTreeView(QWidget *parent = nullptr);
    ~NxFolderTreeView() override;

    /// Shows the folders of a category as they were last unfolded here; at first the sections are.
    /// A category without a current folder gets its first section. Not owned, and may die first;
    /// null for none: the view is empty.
    void setPresenter(NxMediaCategoryPresenter *presenter);
    /// Null without one, and once it died.
    [[nodiscard]] NxMediaCategoryPresenter *presenter() const;

    /// Ids of the folders that are unfolded, also of those without folders below and of those that
    /// cannot be seen. None without a presenter.
    [[nodiscard]] QSet<int> expandedFolders() const;
    /// Unfolds these and folds all others; unknown ids are ignored. Nothing without a presenter.
    void setExpandedFolders(const QSet<int> &folderIds);
    /// The font of the names.
    void setFolderFont(const QFont &font);

    /// Makes a folder below the current one, or below the nearest one above that takes folders, and
    /// lets the user edit its name. The user is told when there is none.
    void newFolder();
    /// Lets the user edit the current folder's name. Where a name is refused, the user is told.
    void renameFolder();
    /// Removes the current folder when the user agrees.
    void removeFolder();

    /// Goes to the next row whose folder's name begins with the letters typed so far.
    void keyboardSearch(const QString &search) override;

Q_SIGNALS:
    /// Files and folders of this computer were dropped on a folder; null: on empty ground.
    void sigFilesDropped(INxFolderMedia *folder, const QStringList &paths);
    /// The user asks for a menu, which a folder has become the current one for; null: for empty
    /// ground. In coordinates of the screen.
    void sigContextMenu(const QPoint &global, INxFolderMedia *folder);

protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    /// Lets the user drag a folder, and returns when that is over. The drag deletes itself.
    virtual Qt::DropAction carry(QDrag *drag);

private:
    friend class NxFolderTreeViewPrivate;
    const std::unique_ptr<NxFolderTreeViewPrivate> d;
};
