// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaLibrary/delegate/NxMediaItemEventTypes.h>
#include <NxMediaViews/NxMediaViewsExport.h>

#include <QAbstractItemView>
#include <QList>
#include <QPair>
#include <QStringList>

#include <memory>

class INxAbstractMedia;
class NxMediaItemDelegate;
class NxMediaItemModel;
class NxMediaItemPainter;
class NxMediaItemSelectionModel;
class NxMediaItemViewPrivate;
class QDrag;
class QHeaderView;

/// The media of a panel: tiles of three sizes, or a list with columns, over an NxMediaItemModel.
///
/// Headers of groups and "View More" rows take the whole width; a click on a header's arrow, or
/// Left, Right, Space and Return on the row, fold and unfold its group. Names are edited in place
/// with F2. Media are selected by mouse (with Shift, Ctrl and a rubber band) and by keyboard (arrow
/// keys, Home, End, Page Up and Down, and the first letters of a name), and dragged out as
/// NxMediaItemMimeData; files that are dropped are announced.
///
/// A reset of the model only marks the view dirty: selection, current media, scroll position, the
/// hovered row and a name that is being edited come back at the next paint, or as soon as anything
/// is asked about rows, once for however many resets. Only what is visible is laid out and painted.
/// The model is told how many media stand in a line.
///
/// A media that leaves the model leaves the selection. GUI thread only; nothing here touches a
/// disk but the start of a drag, which asks what is known about files.
class NXMEDIAVIEWS_EXPORT NxMediaItemView : public QAbstractItemView
{
    Q_OBJECT
public:
    explicit NxMediaItemView(QWidget *parent = nullptr);
    ~NxMediaItemView() override;

    /// An NxMediaItemModel, not owned; null for none. Another kind of model is refused with an
    /// error line. The view makes the selection model, which lives as long as the model is shown.
    void setModel(QAbstractItemModel *model) override;
    [[nodiscard]] NxMediaItemModel *mediaModel() const;
    /// Null without a model.
    [[nodiscard]] NxMediaItemSelectionModel *mediaSelection() const;
    /// Takes painters of headers from whoever wants, but keeps the view's painter of media.
    [[nodiscard]] NxMediaItemDelegate *mediaDelegate() const;
    /// Owned by the delegate.
    [[nodiscard]] NxMediaItemPainter *mediaPainter() const;
    /// Shown above the list; a child of the view.
    [[nodiscard]] QHeaderView *columnHeader() const;

    /// Becomes the mode of all painters of media.
    void setViewMode(NXMEDIALIBRARY::NxMediaItemViewMode mode);
    [[nodiscard]] NXMEDIALIBRARY::NxMediaItemViewMode viewMode() const;
    /// Which column the list is sorted by; the header shows it.
    void setSort(const NXMEDIALIBRARY::NxMediaItemViewSort &sort);
    /// Media in a line; at least 1.
    [[nodiscard]] int itemsPerLine() const;

    /// The selected media, also right after a reset. Not owned.
    [[nodiscard]] QList<INxAbstractMedia *> selectedMedia() const;
    /// Selects these and nothing else; those without a row are left out. At the next paint. Not
    /// owned, and not followed.
    void selectMedia(const QList<INxAbstractMedia *> &medias);
    /// Makes a media the current one and scrolls to it, at the next paint.
    void showMedia(INxAbstractMedia *media);
    /// Null for none.
    [[nodiscard]] INxAbstractMedia *currentMedia() const;
    /// Opens the field in which a media's name is edited; the current media's, without one.
    void editName(INxAbstractMedia *media = nullptr);
    /// Folds or unfolds every group that is shown. A folded one stays folded through resets, until
    /// another folder is shown.
    void setAllExpanded(bool expanded);
    /// Shows frames of the hovered media where the pointer is, from its first at the left edge to
    /// its last at the right one, as Shift does while it is held.
    void setScrubbing(bool scrubbing);
    [[nodiscard]] bool isScrubbing() const;

    using QAbstractItemView::edit;
    [[nodiscard]] QModelIndex indexAt(const QPoint &point) const override;
    [[nodiscard]] QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    void reset() override;
    void doItemsLayout() override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles = QVector<int>()) override;
    void keyboardSearch(const QString &search) override;
    void selectAll() override;
    /// Also what a reset was about to bring back.
    void clearSelection();
    /// The first and the last row that can be seen; -1 and -1 when there is none.
    [[nodiscard]] QPair<int, int> visibleRows() const;

Q_SIGNALS:
    /// The user, or a reset, changed what is selected. Once for however many resets.
    void sigSelectedMediaChanged();
    /// A column's header was clicked; the same key again turns the order round.
    void sigSortRequested(NXMEDIALIBRARY::NxMediaItemViewSortBy key);
    /// A click or a key came to something in a row; see NxMediaItemDelegate::sigMediaItemEvent().
    /// Folding and "View More" are done already.
    void sigMediaItemEvent(int usageEvent, NxMediaItemEventCondition condition,
                           const QModelIndex &index);
    /// A media was double-clicked, or Return was pressed on it. Missing files, too.
    void sigMediaActivated(INxAbstractMedia *media);
    /// The user typed a new name.
    void sigRenameWanted(INxAbstractMedia *media, const QString &name);
    /// The "Import Media" tile was clicked.
    void sigImportWanted();
    /// Files and folders were dropped, absolute paths.
    void sigFilesDropped(const QStringList &paths);
    /// The visible rows, or what stands in them, may have changed.
    void sigVisibleRowsChanged();
    /// Ctrl and the wheel ask for larger media (above 0) or smaller ones.
    void sigZoomWanted(int steps);
    /// A menu is asked for by mouse or keyboard, at a place of the screen; null: on no media.
    void sigMenuWanted(const QPoint &global, INxAbstractMedia *media);

protected:
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    /// Has the user drag what was prepared. The drag is the view's until it is over.
    virtual void dragOut(QDrag *drag);
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    void commitData(QWidget *editor) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;

    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] int horizontalOffset() const override;
    [[nodiscard]] int verticalOffset() const override;
    [[nodiscard]] bool isIndexHidden(const QModelIndex &index) const override;
    /// In the first column only.
    [[nodiscard]] QModelIndexList selectedIndexes() const override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection &selection) const override;

private:
    friend class NxMediaItemViewPrivate;
    const std::unique_ptr<NxMediaItemViewPrivate> d;
};
