// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The keyboard, groups and names.

#include <NxMediaViews/NxMediaItemView.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaViews/NxMediaItemView_p.h>
#include <NxVBLModel/INxGroupMedia.h>
#include <NxVBLModel/NxMediaIndex.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <iterator>

namespace {

bool isReturn(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool isTile(const INxAbstractMedia *media, NXVBLMODEL::NxMediaType type)
{
    return media && media->mediaType() == type;
}

} // namespace

// Groups

INxGroupMedia *NxMediaItemViewPrivate::groupOf(int row) const
{
    return dynamic_cast<INxGroupMedia *>(mediaOf(row));
}

void NxMediaItemViewPrivate::setExpanded(int row, bool expanded)
{
    const INxGroupMedia *group = groupOf(row);
    if (!group || !group->canFold() || group->isExpanded() == expanded)
        return;
    if (expanded)
        folded.remove(group->groupKey());
    else
        folded.insert(group->groupKey());
    model->expandStateToggle(row, expanded);
}

void NxMediaItemViewPrivate::toggle(int row)
{
    const INxGroupMedia *group = groupOf(row);
    if (group)
        setExpanded(row, !group->isExpanded());
}

void NxMediaItemViewPrivate::showMore()
{
    model->viewMoreSimilarPackItem(model->getFilter().listView);
}

void NxMediaItemView::setAllExpanded(bool expanded)
{
    if (!d->model)
        return;
    const QVector<int> heads = d->model->wholeLineRows();
    for (auto row = heads.crbegin(); row != heads.crend(); ++row)
        d->setExpanded(*row, expanded);
}

bool NxMediaItemViewPrivate::activate(int row)
{
    INxAbstractMedia *media = mediaOf(row);
    if (groupOf(row))
        toggle(row);
    else if (isTile(media, NXVBLMODEL::mtViewMoreTile))
        showMore();
    else if (isTile(media, NXVBLMODEL::mtImportTile))
        Q_EMIT q->sigImportWanted();
    else if (media)
        Q_EMIT q->sigMediaActivated(media);
    return media;
}

bool NxMediaItemViewPrivate::pressOnRow(int key)
{
    const int row = q->currentIndex().isValid() ? q->currentIndex().row() : -1;
    const int foldKey = q->isRightToLeft() ? Qt::Key_Right : Qt::Key_Left;
    const int unfoldKey = q->isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    if (groupOf(row) && (key == foldKey || key == unfoldKey)) {
        setExpanded(row, key == unfoldKey);
        return true;
    }
    const bool isPress = isReturn(key) || (key == Qt::Key_Space && !isMedia(mediaOf(row)));
    return isPress && activate(row);
}

// Keys

void NxMediaItemView::keyPressEvent(QKeyEvent *event)
{
    const bool wasEditing = d->editing.has_value();
    d->settle();
    d->isKeyboardUsed = true;
    if (wasEditing && state() == EditingState) {
        // It came back just now, and this key is meant for it.
        if (QWidget *editor = indexWidget(d->edited)) {
            editor->setFocus();
            QApplication::sendEvent(editor, event);
            return;
        }
    }
    if (state() == EditingState && !hasFocus()) {
        QAbstractItemView::keyPressEvent(event); // What the field of a name leaves over.
        return;
    }
    if (event->key() == Qt::Key_Shift && d->hovered >= 0)
        setScrubbing(true);
    const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
    if (held == Qt::NoModifier && d->pressOnRow(event->key())) {
        event->accept();
        return;
    }
    QAbstractItemView::keyPressEvent(event);
}

// The base class makes the first row current where none is: the one that comes back goes before.
void NxMediaItemView::focusInEvent(QFocusEvent *event)
{
    d->settle();
    QAbstractItemView::focusInEvent(event);
}

void NxMediaItemView::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Shift)
        setScrubbing(false);
    QAbstractItemView::keyReleaseEvent(event);
}

QModelIndex NxMediaItemView::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    d->settle();
    const int rows = d->grid.rowCount();
    if (rows == 0 || d->isDirty)
        return {};
    const auto mediaFrom = [this, rows](int row, int step) {
        while (row >= 0 && row < rows && d->grid.isHead(row))
            row += step;
        return row >= 0 && row < rows ? row : -1;
    };
    const int current = currentIndex().isValid() ? currentIndex().row() : -1;
    if (current < 0 && action != MoveEnd)
        return d->model->index(qMax(0, mediaFrom(0, 1)), 0);
    const bool isVertical =
        action == MoveUp || action == MoveDown || action == MovePageUp || action == MovePageDown;
    if (isVertical && d->cursorRow != current)
        d->cursorColumn = d->grid.columnOf(current);
    const int forward = isRightToLeft() ? -1 : 1;
    const int page = viewport()->height();
    const int middle = d->grid.rect(current).center().y();
    int row = current;
    switch (action) {
    case MoveUp:
        row = d->grid.rowAbove(current, d->cursorColumn);
        break;
    case MoveDown:
        row = d->grid.rowBelow(current, d->cursorColumn);
        break;
    case MovePageUp:
        row = d->grid.rowNear(middle - page, d->cursorColumn);
        break;
    case MovePageDown:
        row = d->grid.rowNear(middle + page, d->cursorColumn);
        break;
    case MoveLeft:
        row = mediaFrom(current - forward, -forward);
        break;
    case MoveRight:
        row = mediaFrom(current + forward, forward);
        break;
    case MovePrevious:
        row = mediaFrom(current - 1, -1);
        break;
    case MoveNext:
        row = mediaFrom(current + 1, 1);
        break;
    case MoveHome:
        row = qMax(0, mediaFrom(0, 1));
        break;
    case MoveEnd:
        row = mediaFrom(rows - 1, -1);
        row = row < 0 ? rows - 1 : row; // All groups are folded.
        break;
    }
    if (row < 0)
        row = qMax(0, current);
    d->cursorRow = isVertical ? row : -1;
    return d->model->index(row, 0);
}

// The first letters of a name: those typed quickly are one text, the same letter again goes on to
// the next name.
void NxMediaItemView::keyboardSearch(const QString &search)
{
    d->settle();
    const int rows = d->grid.rowCount();
    if (rows == 0 || search.isEmpty())
        return;
    const bool goesOn =
        d->sinceTyped.isValid() && !d->sinceTyped.hasExpired(QApplication::keyboardInputInterval());
    d->sinceTyped.start();
    const bool isSameLetter = goesOn && d->typed == search;
    if (search.trimmed().isEmpty() && (!goesOn || d->typed.isEmpty())) {
        d->typed.clear(); // A space that selects a media begins no name.
        return;
    }
    d->typed = goesOn && !isSameLetter ? d->typed + search : search;
    const int current = currentIndex().isValid() ? currentIndex().row() : -1;
    const int start = d->typed.size() > 1 ? qMax(0, current) : current + 1;
    for (int i = 0; i < rows; ++i) {
        const int row = (start + i) % rows;
        const INxAbstractMedia *media = d->mediaOf(row);
        if (d->grid.isHead(row) || isTile(media, NXVBLMODEL::mtImportTile) || !media
            || !media->name().startsWith(d->typed, Qt::CaseInsensitive))
            continue;
        selectionModel()->setCurrentIndex(d->model->index(row, 0),
                                          QItemSelectionModel::ClearAndSelect
                                              | QItemSelectionModel::Rows);
        return;
    }
}

// Names

bool NxMediaItemView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const bool isDone = QAbstractItemView::edit(index, trigger, event);
    if (isDone && trigger != NoEditTriggers && state() == EditingState)
        d->edited = index;
    return isDone;
}

void NxMediaItemView::editName(INxAbstractMedia *media)
{
    d->settle();
    QModelIndex index = currentIndex();
    if (media) {
        const QList<int> rows = d->model ? d->model->rows(media) : QList<int>();
        index = rows.isEmpty() ? QModelIndex() : d->model->index(rows.constFirst(), 0);
    }
    if (!index.isValid() || !index.flags().testFlag(Qt::ItemIsEditable))
        return;
    scrollTo(index);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect
                                                 | QItemSelectionModel::Rows);
    edit(index);
}
