// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaViews/NxMediaColumnPainter_p.h>
#include <NxMediaViews/NxMediaGrid_p.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaRowMemory_p.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxWidgets/INxSkinEventHandler.h>

#include <QBitArray>
#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QMetaObject>
#include <QPersistentModelIndex>
#include <QPoint>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QTimer>

#include <optional>
#include <vector>

class INxAbstractMedia;
class INxGroupMedia;
class NxMediaItemDelegate;
class NxMediaItemModel;
class NxMediaItemPainter;
class NxMediaItemSelectionModel;
class NxMediaItemViewAccessible;
class QHeaderView;
class QLineEdit;
class QPainter;
class QStyleOptionViewItem;

/// Whether it is a media of the library: no head, and no tile.
[[nodiscard]] bool isMedia(const INxAbstractMedia *media);

/// How a NxMediaItemView keeps its rows, what it remembers over resets, and what the pointer is on.
class NxMediaItemViewPrivate final : public INxSkinEventHandler
{
public:
    explicit NxMediaItemViewPrivate(NxMediaItemView *view);
    ~NxMediaItemViewPrivate() override;

    void OnSkinChangedEvent(INxSkinEvent *event) override;

    [[nodiscard]] static NxMediaItemViewPrivate *of(NxMediaItemView *view) { return view->d.get(); }
    void retranslate();

    // Rows

    void connectDelegate();
    /// Has the base class show the model, with a selection of its own.
    void takeModel();
    void connectModel();
    void disconnectModel();
    /// Another model is shown, or none: nothing is remembered of the one before.
    void forgetRows();
    [[nodiscard]] NxMediaItemSelectionModel *selection() const;
    void connectHeader();
    void connectPointer();
    /// Rows are to be laid out anew; what is visible stays visible.
    void layOutLater();
    /// Does all that was put off.
    void settle();
    [[nodiscard]] NxMediaGrid::Measures measures() const;
    void fitPainters();
    void fitScrollBars();
    void fitHeader();
    void tellItemsPerLine();
    [[nodiscard]] bool isList() const { return mode == NXMEDIALIBRARY::vmList; }
    [[nodiscard]] QPoint offset() const;
    [[nodiscard]] QRect placeOf(int row) const;
    [[nodiscard]] int rowAt(const QPoint &point) const;
    [[nodiscard]] INxAbstractMedia *mediaOf(int row) const;
    [[nodiscard]] INxGroupMedia *groupOf(int row) const;
    void repaintRow(int row);
    void goTo(int row);

    // What outlasts resets

    void remember();
    void rememberAnchor(const NxMediaGrid::Range &seen);
    void wantCurrent(int row, INxAbstractMedia *media);
    /// The key of a head's group; none of other rows.
    [[nodiscard]] std::optional<QString> groupKey(int row) const;
    /// The head of the group with that key; -1 for none.
    [[nodiscard]] int rowOfGroup(const std::optional<QString> &key) const;
    void rememberSelection();
    void rememberEditing();
    void restoreScroll();
    void restoreSelection();
    void restoreCurrent();
    void restoreHover();
    void restoreEditing(int row);
    void refold();
    void tellSelection();
    void tellNow();

    // Groups

    void setExpanded(int row, bool expanded);
    void toggle(int row);
    void showMore();
    /// What Return does: folds, unfolds, imports, shows more, or activates a media. False when
    /// there is no such row.
    bool activate(int row);
    /// True when the key did something to the current row.
    bool pressOnRow(int key);

    // Pointer

    void setPointer(const QPoint &point);
    void pointerLeft();
    /// From where the button was pressed to the pointer, in the rows' own coordinates.
    [[nodiscard]] QRect band() const;
    [[nodiscard]] QItemSelectionRange rangeOf(const NxMediaGrid::Range &rows) const;
    void selectBand();
    /// While the pointer is at an edge of the viewport, or beyond, the band grows over more rows.
    void scrollBand();
    void updateHover();
    void setHovered(int row);
    void play(int row);
    void stop();
    void scrub();

    // Drawing

    [[nodiscard]] QBitArray selectedRows(const NxMediaGrid::Range &rows) const;
    void drawRow(QPainter *canvas, QStyleOptionViewItem *option, int row, bool isSelected) const;
    void drawColumns(QPainter *canvas, const QStyleOptionViewItem &option, int row) const;
    void drawFocus(QPainter *canvas) const;
    void drawBand(QPainter *canvas) const;
    void drawDropFrame(QPainter *canvas) const;

    NxMediaItemView *const q;
    QPointer<NxMediaItemModel> model; // Not owned.
    NxMediaItemDelegate *const delegate; // Children of the view.
    NxMediaItemPainter *const painter; // The delegate's.
    QHeaderView *const header;
    NxMediaColumnPainter columnPainter;
    NXMEDIALIBRARY::NxMediaItemViewMode mode;
    std::vector<QMetaObject::Connection> connections; // With the model.

    NxMediaGrid grid;
    bool isDirty = true;
    bool isResetting = false; // What stands in which row is not known just now.
    bool isSettling = false;
    bool isPainting = false;
    bool isTelling = false;
    bool isToBeTold = false;
    bool isCounted = false; // Among the views that are visible.

    struct Editing
    {
        QString text;
        int cursor = 0;
        int selectionStart = -1;
        int selectionLength = 0;
    };
    NxMediaRowMemory memory; // While dirty.
    QPointer<INxFolderMedia> folder; // Of the rows laid out last.
    int anchorTop = 0; // px below the top of the viewport.
    std::optional<QString> anchorGroup; // In which the anchor stands: it may be folded.
    int anchorGroupTop = 0; // px, of its head.
    bool isSelectionWanted = false; // To be restored, or chosen.
    bool isShowWanted = false; // The current media is to be scrolled to.
    int currentRow = -1; // As laid out last, while dirty.
    std::optional<QString> currentGroup; // Whose head is the current row.
    std::optional<Editing> editing;
    bool isCommitting = false;
    QPersistentModelIndex edited;
    QSet<QString> folded; // Keys of groups.

    QPoint pointer; // In the viewport.
    bool isPointerInside = false;
    int hovered = -1;
    bool isScrubbing = false;
    bool isKeyboardUsed = false; // Where the keyboard is can be seen.
    int cursorColumn = 0; // Kept while the keyboard goes up and down,
    int cursorRow = -1; // and nothing but it moves the current row from here.
    QPoint bandStart; // In the rows' own coordinates.
    QItemSelectionModel::SelectionFlags bandCommand;
    QTimer bandTimer;
    bool isDropTarget = false;
    const INxAbstractMedia *pressed = nullptr; // Never followed.
    bool isLeftPress = false; // The latest press was of the left button.
    int turned = 0; // The wheel, less than a notch.
    QString typed; // The first letters of a name.
    QElapsedTimer sinceTyped;
    NxMediaItemViewAccessible *accessible = nullptr; // Not owned; null until somebody asks.
};
