// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaRowAccessible_p.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaViews/NxMediaColumns.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaItemView_p.h>
#include <NxMediaViews/NxMediaKind_p.h>
#include <NxMediaViews/NxMediaRowDrawing_p.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeySequence>
#include <QWindow>

namespace {

using Actions = QAccessibleActionInterface;

const INxGroupMedia *groupOf(const INxAbstractMedia *media)
{
    return dynamic_cast<const INxGroupMedia *>(media);
}

const INxAbstractMediaItem *itemOf(const INxAbstractMedia *media)
{
    return dynamic_cast<const INxAbstractMediaItem *>(media);
}

QString itemText(const INxAbstractMedia &media)
{
    QStringList texts{media.name(), nxMediaKind(media).text()};
    if (const INxAbstractMediaItem *item = itemOf(&media)) {
        texts.append(NxMediaLibraryUtils::getDuration(item));
        if (NxMediaLibraryUtils::isUsed(item))
            texts.append(NxMediaItemView::tr("used", "A media"));
        if (NxMediaRowDrawing::isMissing(item))
            texts.append(NxMediaItemView::tr("missing", "A media"));
    }
    texts.removeAll(QString());
    return texts.join(QLatin1String(", "));
}

QString groupText(const INxGroupMedia &group)
{
    return QStringLiteral("%1 (%2)").arg(group.name(), QString::number(group.itemCount()));
}

} // namespace

NxMediaRowAccessible::NxMediaRowAccessible(NxMediaItemView *view, int row)
    : m_view(view),
      m_row(row)
{
}

NxMediaRowAccessible::~NxMediaRowAccessible() = default;

const QString &NxMediaRowAccessible::renameAction()
{
    static const QString action = QStringLiteral("Rename");
    return action;
}

QModelIndex NxMediaRowAccessible::index() const
{
    const NxMediaItemModel *model = m_view ? m_view->mediaModel() : nullptr;
    return model && m_row < model->rowCount() ? model->index(m_row, 0) : QModelIndex();
}

INxAbstractMedia *NxMediaRowAccessible::media() const
{
    const NxMediaItemModel *model = m_view ? m_view->mediaModel() : nullptr;
    return model ? model->mediaItem(m_row) : nullptr;
}

bool NxMediaRowAccessible::isValid() const
{
    return media();
}

QWindow *NxMediaRowAccessible::window() const
{
    return m_view ? m_view->window()->windowHandle() : nullptr;
}

QAccessibleInterface *NxMediaRowAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(m_view.data());
}

QRect NxMediaRowAccessible::rect() const
{
    const QRect place = m_view ? m_view->visualRect(index()) : QRect();
    return place.isEmpty() ? QRect()
                           : QRect(m_view->viewport()->mapToGlobal(place.topLeft()), place.size());
}

QAccessible::Role NxMediaRowAccessible::role() const
{
    const INxAbstractMedia *shown = media();
    if (!shown)
        return QAccessible::NoRole;
    if (groupOf(shown))
        return QAccessible::Heading;
    return isMedia(shown) ? QAccessible::ListItem : QAccessible::Button;
}

QAccessible::State NxMediaRowAccessible::state() const
{
    QAccessible::State state;
    const INxAbstractMedia *shown = media();
    if (!shown) {
        state.invalid = true;
        return state;
    }
    const QModelIndex row = index();
    const QRect seen = m_view->visualRect(row) & m_view->viewport()->rect();
    state.invisible = !m_view->isVisible();
    state.offscreen = seen.isEmpty();
    state.disabled = !m_view->isEnabled() || !row.flags().testFlag(Qt::ItemIsEnabled);
    state.focusable = true;
    state.focused = m_view->hasFocus() && m_view->currentIndex().row() == m_row;
    state.selectable = row.flags().testFlag(Qt::ItemIsSelectable);
    state.multiSelectable = state.selectable;
    state.selected = state.selectable && m_view->selectionModel()->isSelected(row);
    state.editable = row.flags().testFlag(Qt::ItemIsEditable);
    const INxGroupMedia *group = groupOf(shown);
    state.expandable = group && group->canFold();
    state.expanded = state.expandable && group->isExpanded();
    state.collapsed = state.expandable && !group->isExpanded();
    return state;
}

QString NxMediaRowAccessible::text(QAccessible::Text text) const
{
    const INxAbstractMedia *shown = media();
    if (shown && text == QAccessible::Description)
        return columnTexts();
    if (!shown || text != QAccessible::Name)
        return {};
    if (const INxGroupMedia *group = groupOf(shown))
        return groupText(*group);
    return isMedia(shown) ? itemText(*shown) : shown->name();
}

QString NxMediaRowAccessible::columnTexts() const
{
    const INxAbstractMediaItem *item = itemOf(media());
    if (!item || m_view->viewMode() != NXMEDIALIBRARY::vmList)
        return {};
    const NxMediaItemModel *model = m_view->mediaModel();
    QStringList texts;
    for (int column = 1; column < model->columnCount(); ++column) {
        const QString value = NxMediaColumns::text(*item, model->categoryType(), column);
        if (m_view->columnHeader()->isSectionHidden(column) || value.isEmpty())
            continue;
        const QString heading =
            model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        texts.append(QStringLiteral("%1: %2").arg(heading, value));
    }
    return texts.join(QLatin1String("; "));
}

void NxMediaRowAccessible::setText(QAccessible::Text text, const QString &value)
{
    INxAbstractMedia *shown = media();
    const bool isName = text == QAccessible::Name && isMedia(shown);
    if (isName && !value.isEmpty() && value != shown->name())
        Q_EMIT m_view->sigRenameWanted(shown, value);
}

void *NxMediaRowAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
}

QStringList NxMediaRowAccessible::actionNames() const
{
    const INxAbstractMedia *shown = media();
    if (!shown)
        return {};
    QStringList actions{Actions::pressAction(), Actions::setFocusAction()};
    const INxGroupMedia *group = groupOf(shown);
    if (group && !group->canFold())
        actions.removeAll(Actions::pressAction());
    if (isMedia(shown) || (group && group->canFold()))
        actions.append(Actions::toggleAction());
    if (isMedia(shown))
        actions.append(renameAction());
    return actions;
}

// The row may be gone afterwards, and this with it.
void NxMediaRowAccessible::doAction(const QString &action)
{
    const QModelIndex row = index();
    if (!actionNames().contains(action) || !row.isValid())
        return;
    QItemSelectionModel *selection = m_view->selectionModel();
    if (action == Actions::setFocusAction()) {
        m_view->setFocus();
        selection->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
    } else if (action == renameAction()) {
        m_view->editName(media());
    } else if (action == Actions::toggleAction() && isMedia(media())) {
        selection->select(row, QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
    } else {
        NxMediaItemViewPrivate::of(m_view)->activate(m_row);
    }
}

QStringList NxMediaRowAccessible::keyBindingsForAction(const QString &action) const
{
    if (action == renameAction())
        return {QKeySequence(Qt::Key_F2).toString(QKeySequence::NativeText)};
    return {};
}

QString NxMediaRowAccessible::localizedActionName(const QString &action) const
{
    return action == renameAction() ? NxMediaItemView::tr("Rename")
                                    : QAccessibleActionInterface::localizedActionName(action);
}
