// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaItemViewAccessible_p.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaItemView_p.h>
#include <NxMediaViews/NxMediaRowAccessible_p.h>

#include <QApplication>
#include <QItemSelection>

#include <utility>

namespace {

QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    const QLatin1String served(NxMediaItemView::staticMetaObject.className());
    auto *view = className == served ? qobject_cast<NxMediaItemView *>(object) : nullptr;
    return view ? new NxMediaItemViewAccessible(view) : nullptr;
}

NxMediaItemViewAccessible::Listener newsListener = nullptr;

bool isHeard()
{
    return newsListener || QAccessible::isActive();
}

void send(QAccessibleEvent *news)
{
    if (newsListener)
        newsListener(news);
    else
        QAccessible::updateAccessibility(news);
}

bool isOneRow(const QItemSelection &rows)
{
    return rows.size() == 1 && rows.constFirst().height() == 1;
}

} // namespace

void NxMediaItemViewAccessible::install()
{
    QAccessible::installFactory(&makeInterface);
}

void NxMediaItemViewAccessible::setListener(Listener listener)
{
    newsListener = listener;
}

void NxMediaItemViewAccessible::tell(NxMediaItemView *view, QAccessible::Event event, int row)
{
    if (row < 0 || !isHeard())
        return;
    QAccessibleEvent news(view, event);
    news.setChild(row);
    send(&news);
}

void NxMediaItemViewAccessible::tellSelection(NxMediaItemView *view, const QItemSelection &selected,
                                              const QItemSelection &deselected)
{
    if (!isHeard())
        return;
    const bool areFew = (selected.isEmpty() || isOneRow(selected))
                        && (deselected.isEmpty() || isOneRow(deselected));
    if (!areFew) {
        QAccessibleEvent news(view, QAccessible::SelectionWithin);
        send(&news);
        return;
    }
    if (!deselected.isEmpty())
        tell(view, QAccessible::SelectionRemove, deselected.constFirst().top());
    if (!selected.isEmpty())
        tell(view, QAccessible::SelectionAdd, selected.constFirst().top());
}

void NxMediaItemViewAccessible::tellFocus(NxMediaItemView *view)
{
    if (view->hasFocus() && view->currentIndex().isValid())
        tell(view, QAccessible::Focus, view->currentIndex().row());
}

void NxMediaItemViewAccessible::dropRows(NxMediaItemView *view)
{
    if (NxMediaItemViewAccessible *accessible = NxMediaItemViewPrivate::of(view)->accessible)
        accessible->drop();
}

NxMediaItemViewAccessible::NxMediaItemViewAccessible(NxMediaItemView *view)
    : QAccessibleWidget(view, QAccessible::List),
      m_view(view)
{
    NxMediaItemViewPrivate::of(view)->accessible = this;
}

NxMediaItemViewAccessible::~NxMediaItemViewAccessible()
{
    drop();
    if (m_view)
        NxMediaItemViewPrivate::of(m_view)->accessible = nullptr;
}

void NxMediaItemViewAccessible::drop()
{
    const QHash<int, QAccessible::Id> rows = std::exchange(m_rows, {});
    for (const QAccessible::Id row : rows)
        QAccessible::deleteAccessibleInterface(row);
}

int NxMediaItemViewAccessible::childCount() const
{
    const NxMediaItemModel *model = m_view ? m_view->mediaModel() : nullptr;
    return model ? model->rowCount() : 0;
}

QAccessibleInterface *NxMediaItemViewAccessible::child(int row) const
{
    if (row < 0 || row >= childCount())
        return nullptr;
    const auto made = m_rows.constFind(row);
    if (made != m_rows.constEnd())
        return QAccessible::accessibleInterface(*made);
    auto *fresh = new NxMediaRowAccessible(m_view, row); // The register's.
    m_rows.insert(row, QAccessible::registerAccessibleInterface(fresh));
    return fresh;
}

int NxMediaItemViewAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *row = dynamic_cast<const NxMediaRowAccessible *>(child);
    return row && row->isValid() && row->parent() == this ? row->row() : -1;
}

QAccessibleInterface *NxMediaItemViewAccessible::childAt(int x, int y) const
{
    if (!m_view)
        return nullptr;
    const QPoint point = m_view->viewport()->mapFromGlobal({x, y});
    const bool isInside = m_view->viewport()->rect().contains(point);
    const QModelIndex index = isInside ? m_view->indexAt(point) : QModelIndex();
    return index.isValid() ? child(index.row()) : nullptr;
}

QAccessibleInterface *NxMediaItemViewAccessible::focusChild() const
{
    if (!m_view)
        return nullptr;
    if (m_view->hasFocus())
        return m_view->currentIndex().isValid() ? child(m_view->currentIndex().row()) : nullptr;
    QWidget *focus = QApplication::focusWidget();
    const bool isEditing = focus && m_view->viewport()->isAncestorOf(focus);
    return isEditing ? QAccessible::queryAccessibleInterface(focus) : nullptr;
}
