// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What outlasts a reset of the model, and how rows are laid out anew.

#include <NxMediaViews/NxMediaItemView.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSelectionModel.h>
#include <NxMediaViews/NxMediaItemViewAccessible_p.h>
#include <NxMediaViews/NxMediaItemView_p.h>
#include <NxVBLModel/INxGroupMedia.h>
#include <NxVBLModel/NxMediaIndex.h>

#include <QApplication>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

void NxMediaItemViewPrivate::remember()
{
    if (isDirty || !model)
        return; // Nothing was laid out since it was remembered.
    const int top = q->verticalOffset();
    const NxMediaGrid::Range seen = grid.rowsBetween(top, top + q->viewport()->height() - 1);
    const int current = q->currentIndex().isValid() ? q->currentIndex().row() : -1;
    wantCurrent(current, mediaOf(current));
    rememberAnchor(seen);
    memory.setMedia(NxMediaRowMemory::Hovered, mediaOf(hovered));
}

// The current row stays where it is seen, if it is seen; else what is on top.
void NxMediaItemViewPrivate::rememberAnchor(const NxMediaGrid::Range &seen)
{
    int anchor = seen.first;
    if (currentRow >= seen.first && currentRow <= seen.second)
        anchor = currentRow;
    else
        while (anchor >= 0 && anchor < seen.second && grid.isHead(anchor))
            ++anchor;
    memory.setMedia(NxMediaRowMemory::Anchor, mediaOf(anchor));
    anchorTop = placeOf(anchor).top();
    const int head = grid.headOf(anchor);
    anchorGroup = groupKey(head);
    anchorGroupTop = head >= seen.first ? placeOf(head).top() : 0; // Or it comes into sight.
}

void NxMediaItemViewPrivate::wantCurrent(int row, INxAbstractMedia *media)
{
    currentRow = row;
    currentGroup = groupKey(row);
    memory.setMedia(NxMediaRowMemory::Current, media);
}

std::optional<QString> NxMediaItemViewPrivate::groupKey(int row) const
{
    const INxGroupMedia *group = groupOf(row);
    return group ? std::optional<QString>(group->groupKey()) : std::nullopt;
}

int NxMediaItemViewPrivate::rowOfGroup(const std::optional<QString> &key) const
{
    if (!key)
        return -1;
    const QVector<int> heads = model->wholeLineRows();
    const auto found =
        std::find_if(heads.begin(), heads.end(), [&](int row) { return groupKey(row) == key; });
    return found == heads.end() ? -1 : *found;
}

void NxMediaItemViewPrivate::rememberSelection()
{
    remember();
    rememberEditing();
    if (isSelectionWanted || !selection())
        return;
    memory.setSelected(selection()->selectedItems());
    isSelectionWanted = true;
}

void NxMediaItemViewPrivate::rememberEditing()
{
    if (editing || isCommitting || !edited.isValid()
        || q->state() != QAbstractItemView::EditingState)
        return;
    const auto *line = qobject_cast<QLineEdit *>(q->indexWidget(edited));
    if (!line)
        return;
    editing = {line->text(), line->cursorPosition(), line->selectionStart(),
               line->selectionLength()};
    memory.setMedia(NxMediaRowMemory::Edited, mediaAt(edited));
}

void NxMediaItemViewPrivate::settle()
{
    if (!isDirty || isSettling || isResetting)
        return;
    if (!model) {
        isDirty = false;
        fitScrollBars();
        return;
    }
    int editedRow = -1;
    const bool isSelectionNew = isSelectionWanted;
    {
        const QScopedValueRollback<bool> settling(isSettling, true);
        refold();
        fitPainters();
        grid.layOut(model->rowCount(), model->wholeLineRows(), measures());
        isDirty = false;
        fitScrollBars();
        memory.find(*model);
        restoreSelection();
        restoreCurrent();
        restoreScroll();
        restoreHover();
        editedRow = memory.row(NxMediaRowMemory::Edited);
        memory.clear();
        isSelectionWanted = false;
        isShowWanted = false;
        currentRow = -1;
        currentGroup.reset();
        q->QAbstractItemView::updateGeometries();
    }
    restoreEditing(editedRow);
    if (isSelectionNew)
        tellSelection();
    QTimer::singleShot(0, q, [this] {
        NxMediaItemViewAccessible::tellFocus(q);
        Q_EMIT q->sigVisibleRowsChanged();
    });
}

// Whoever is told may do anything, which a view that is being painted must not see; and who asked
// for the rows must find them settled when the model is reset once more.
void NxMediaItemViewPrivate::tellSelection()
{
    isToBeTold = true;
    if (isPainting || isTelling)
        QTimer::singleShot(0, q, [this] { tellNow(); });
    else
        tellNow();
}

void NxMediaItemViewPrivate::tellNow()
{
    if (!isToBeTold || isPainting || isTelling)
        return; // Done, or who is busy does it later.
    isToBeTold = false;
    {
        const QScopedValueRollback<bool> telling(isTelling, true);
        Q_EMIT q->sigSelectedMediaChanged();
        settle();
    }
    if (isToBeTold)
        QTimer::singleShot(0, q, [this] { tellNow(); });
}

// Every rebuild of the rows unfolds all groups; those that the user folded are folded again.
void NxMediaItemViewPrivate::refold()
{
    if (model->folder() != folder)
        folded.clear();
    if (folded.isEmpty())
        return;
    const QVector<int> heads = model->wholeLineRows();
    for (auto row = heads.crbegin(); row != heads.crend(); ++row) {
        const INxGroupMedia *group = groupOf(*row);
        if (group && group->isExpanded() && folded.contains(group->groupKey()))
            model->expandStateToggle(*row, false);
    }
}

void NxMediaItemViewPrivate::restoreSelection()
{
    QItemSelectionModel *chosen = q->selectionModel();
    if (!isSelectionWanted || (!memory.hasSelection() && !chosen->hasSelection()))
        return;
    chosen->select(memory.selection(*model), QItemSelectionModel::ClearAndSelect);
}

void NxMediaItemViewPrivate::restoreCurrent()
{
    const bool isGone = !memory.media(NxMediaRowMemory::Current);
    int row = isGone ? rowOfGroup(currentGroup) : memory.row(NxMediaRowMemory::Current);
    if (isGone && row < 0 && model->folder() == folder && currentRow >= 0)
        row = qMin(currentRow, grid.rowCount() - 1);
    if (row < 0 || q->currentIndex().row() == row)
        return;
    const bool scrolls = q->hasAutoScroll();
    q->setAutoScroll(false);
    q->selectionModel()->setCurrentIndex(model->index(row, 0), QItemSelectionModel::NoUpdate);
    q->setAutoScroll(scrolls);
}

void NxMediaItemViewPrivate::restoreScroll()
{
    QScrollBar *bar = q->verticalScrollBar();
    const int anchor = memory.row(NxMediaRowMemory::Anchor);
    const int head = rowOfGroup(anchorGroup);
    if (model->folder() != folder)
        bar->setValue(0);
    else if (anchor >= 0)
        bar->setValue(grid.rect(anchor).top() - anchorTop);
    else if (head >= 0)
        bar->setValue(grid.rect(head).top() - anchorGroupTop);
    else if (memory.media(NxMediaRowMemory::Anchor))
        bar->setValue(0); // It is not shown any more: what is, begins at the top.
    folder = model->folder();
    const int shown = memory.row(NxMediaRowMemory::Current);
    if (isShowWanted && shown >= 0)
        q->scrollTo(model->index(shown, 0));
}

void NxMediaItemViewPrivate::restoreHover()
{
    const int row = isPointerInside ? rowAt(pointer) : -1;
    const bool goesOn = row >= 0 && mediaOf(row) == memory.media(NxMediaRowMemory::Hovered);
    hovered = goesOn ? row : -1;
    if (!goesOn) {
        stop();
        setHovered(row);
    }
}

void NxMediaItemViewPrivate::restoreEditing(int row)
{
    if (!editing)
        return;
    const Editing kept = *editing;
    editing.reset();
    if (row < 0)
        return;
    q->edit(model->index(row, 0));
    auto *line = qobject_cast<QLineEdit *>(q->indexWidget(model->index(row, 0)));
    if (!line)
        return;
    line->setText(kept.text);
    line->setCursorPosition(kept.cursor);
    if (kept.selectionStart < 0)
        return;
    const bool isBackward = kept.cursor == kept.selectionStart; // The cursor is its end.
    const int end = kept.selectionStart + kept.selectionLength;
    line->setSelection(isBackward ? end : kept.selectionStart,
                       isBackward ? -kept.selectionLength : kept.selectionLength);
}

void NxMediaItemView::reset()
{
    const State before = state();
    const bool hadField =
        before == EditingState && viewport()->isAncestorOf(QApplication::focusWidget());
    QAbstractItemView::reset();
    NxMediaItemViewAccessible::dropRows(this);
    if (before == DragSelectingState || before == DraggingState)
        setState(before);
    if (hadField)
        setFocus(); // What is typed until the field is back reaches it through the view.
    d->isDirty = true;
    d->isResetting = false;
    viewport()->update();
}

// A name that is typed to its end is not edited any more, whatever becomes of its row.
void NxMediaItemView::commitData(QWidget *editor)
{
    const QScopedValueRollback<bool> committing(d->isCommitting, true);
    QAbstractItemView::commitData(editor);
}

// The base class asks for it after each reset; by then it may have been done.
void NxMediaItemView::doItemsLayout()
{
    if (d->isDirty)
        viewport()->update();
}

QList<INxAbstractMedia *> NxMediaItemView::selectedMedia() const
{
    d->settle();
    d->tellNow(); // Nobody answers by what was selected before a reset.
    return d->selection() ? d->selection()->selectedItems() : QList<INxAbstractMedia *>();
}

void NxMediaItemView::selectMedia(const QList<INxAbstractMedia *> &medias)
{
    d->layOutLater();
    d->memory.setSelected(medias);
    d->isSelectionWanted = true;
}

void NxMediaItemView::showMedia(INxAbstractMedia *media)
{
    d->layOutLater();
    d->currentGroup.reset();
    d->memory.setMedia(NxMediaRowMemory::Current, media);
    d->isShowWanted = true;
}

INxAbstractMedia *NxMediaItemView::currentMedia() const
{
    d->settle();
    return mediaAt(currentIndex());
}

void NxMediaItemView::selectAll()
{
    d->settle();
    QAbstractItemView::selectAll();
}

void NxMediaItemView::clearSelection()
{
    d->settle();
    QAbstractItemView::clearSelection();
}

// Whoever chooses a row before the paint knows of nothing that would come back.
void NxMediaItemView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    if (d->isSettling)
        return; // All is painted anew, and told afterwards.
    if (d->isDirty) {
        const int row = current.isValid() ? current.row() : -1;
        d->wantCurrent(row, d->mediaOf(row));
    }
    QAbstractItemView::currentChanged(current, previous);
    NxMediaItemViewAccessible::tellFocus(this);
}

void NxMediaItemView::selectionChanged(const QItemSelection &selected,
                                       const QItemSelection &deselected)
{
    if (d->isSettling)
        return; // All is painted anew, and told afterwards.
    if (d->isDirty) {
        d->memory.setSelected({});
        d->isSelectionWanted = false;
    }
    QAbstractItemView::selectionChanged(selected, deselected);
    NxMediaItemViewAccessible::tellSelection(this, selected, deselected);
    Q_EMIT sigSelectedMediaChanged();
}
