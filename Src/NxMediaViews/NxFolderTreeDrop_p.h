// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxFolderMedia.h>

#include <QCoreApplication>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTimer>

#include <functional>

class NxMediaCategoryPresenter;
class QDropEvent;
class QMimeData;
class QPainter;
class QTreeView;

/// What is dragged over a folder tree: where it would go, whether it may, and that it gets there.
///
/// A folder goes onto another one or between two; media and files go onto folders alone. A folder
/// that is rested on unfolds, after the view's autoExpandDelay().
class NxFolderTreeDrop
{
    Q_DECLARE_TR_FUNCTIONS(NxFolderTreeView)
public:
    /// The view, not owned, shows folderAt() rows and outlives this.
    explicit NxFolderTreeDrop(QTreeView *view);

    void setPresenter(NxMediaCategoryPresenter *presenter);
    /// The folder that the user drags; null while it is none of this view's.
    void setDraggedFolder(INxFolderMedia *folder);

    /// Follows the pointer, and accepts the event where it may end.
    void hover(QDropEvent *event);
    /// The pointer left, or let go.
    void leave();
    /// Takes what is dropped, if it may be dropped there. Files are only announced.
    void drop(QDropEvent *event);
    /// Shows where it would go.
    void paint(QPainter *painter) const;

    std::function<void(INxFolderMedia *folder, const QStringList &paths)> filesDropped;
    /// Hears a sentence for the user. In the middle of a drop: it must not wait for the user.
    std::function<void(const QString &text)> refused;

private:
    enum class Cargo { None, Folder, Media, Files };
    enum class Side { On, Above, Below };
    struct Target
    {
        QPersistentModelIndex index; // Invalid: empty ground.
        Side side = Side::On;
    };
    struct Place
    {
        INxFolderMedia *parent = nullptr; // Not owned.
        int row = -1; // The end.
    };

    [[nodiscard]] Cargo cargoOf(const QMimeData *data) const;
    [[nodiscard]] Target targetAt(const QPoint &at, Cargo cargo) const;
    [[nodiscard]] Place placeOf(const Target &target) const;
    [[nodiscard]] bool mayGo(Cargo cargo, const QMimeData *data, const Target &target) const;
    [[nodiscard]] bool mayMoveFolder(const Place &place) const;
    [[nodiscard]] bool mayMoveMedia(const QMimeData *data, const INxFolderMedia *into) const;
    void showTarget(const Target &target);
    void openSoon(const QModelIndex &index);
    void open();
    void moveFolder(const Place &place);
    void moveMedia(const QMimeData *data, INxFolderMedia *into);

    QTreeView *const m_view; // Not owned.
    QPointer<NxMediaCategoryPresenter> m_presenter; // Not owned.
    QPointer<INxFolderMedia> m_dragged;
    Target m_target; // What is shown.
    bool m_isShown = false;
    QTimer m_opening;
    QPersistentModelIndex m_rested; // What opens next.
};
