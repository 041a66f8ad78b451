// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What happens to the items and folders of the library.

#include "ItemSession.h"

#include <NxVBLModel/INxMediaItemEventObserver.h>

#include <array>

void ItemSession::addNew(const Event &event)
{
    if (m_yard.itemCount() >= m_size.most)
        return;
    ScriptedItem *item = m_yard.makeItem(event.a);
    ScriptedItemFolder *folder = someFolder(event.b);
    const int count = folder->media.size();
    const int place = event.c % 3 == 0 ? int(event.c) % (count + 1) : count;
    tell(QStringLiteral("add %1 to %2 at %3 of %4")
             .arg(m_yard.describe(item), folder->title)
             .arg(place)
             .arg(count));
    planMeanwhile(event.d);
    m_yard.manager()->insert(folder, place, item);
}

void ItemSession::bringBack(const Event &event)
{
    ScriptedItem *item = m_yard.removed(event.a);
    if (!item)
        return;
    ScriptedItemFolder *folder = someFolder(event.b);
    const int place = int(event.c) % (folder->media.size() + 1);
    tell(QStringLiteral("bring %1 back to %2 at %3")
             .arg(m_yard.describe(item), folder->title)
             .arg(place));
    planMeanwhile(event.d);
    m_yard.manager()->insert(folder, place, item);
}

/// Mostly what is shown.
ScriptedItem *ItemSession::someItem(const Event &event) const
{
    INxAbstractMedia *shown = m_model.mediaItem(int(event.a) % qMax(1, m_model.rowCount()));
    auto *item = event.d % 4 != 0 ? dynamic_cast<ScriptedItem *>(shown) : nullptr;
    return item ? item : m_yard.listed(event.a);
}

/// Of what is listed already.
void ItemSession::tellOfAddition(const Event &event)
{
    ScriptedItem *item = someItem(event);
    if (!item)
        return;
    const bool isWhole = event.b % 4 != 0;
    tell(
        QStringLiteral("tell that %1 is added, before %2").arg(m_yard.describe(item)).arg(isWhole));
    INxFolderMedia *folder = item->home;
    m_yard.manager()->observers.tell([&](auto *observer) {
        if (isWhole)
            observer->onBeforeAddItemEvent(folder, item);
        observer->onAfterAddItemEvent(folder, item);
    });
}

void ItemSession::remove(const Event &event)
{
    ScriptedItem *item = someItem(event);
    if (!item)
        return;
    tell(QStringLiteral("remove ") + m_yard.describe(item));
    m_yard.take(item);
}

void ItemSession::rename(const Event &event)
{
    ScriptedItem *item = m_yard.listed(event.a);
    if (!item)
        return;
    const QString before = m_yard.describe(item);
    m_yard.manager()->rename(item, ItemYard::someName(event.b));
    tell(QStringLiteral("rename %1 to %2").arg(before, item->title));
}

void ItemSession::move(const Event &event)
{
    ScriptedItem *item = m_yard.listed(event.a);
    if (!item)
        return;
    ScriptedItemFolder *to = someFolder(event.b);
    if (item->home == m_yard.favourites() || to == m_yard.favourites())
        return;
    tell(QStringLiteral("move %1 to %2").arg(m_yard.describe(item), to->title));
    planMeanwhile(event.d);
    m_yard.manager()->move(item, to, event.c % 2 == 0 ? to->media.size() : int(event.c));
    m_yard.leavePacks(item);
}

void ItemSession::moveQuietly(const Event &event)
{
    ScriptedItem *item = m_yard.listed(event.a);
    if (!item)
        return;
    ScriptedItemFolder *to = m_yard.folder(event.b);
    if (item->home == m_yard.favourites() || to == m_yard.favourites()
        || m_model.checkFolder(item->home) != m_model.checkFolder(to))
        return;
    tell(QStringLiteral("move %1 quietly to %2 at %3")
             .arg(m_yard.describe(item), to->title)
             .arg(event.c));
    m_yard.manager()->moveQuietly(item, to, int(event.c % 9));
    m_yard.leavePacks(item);
}

/// Mostly what is shown, and what it is sorted and grouped by.
void ItemSession::change(const Event &event)
{
    ScriptedItem *item = event.b % 8 == 0 ? m_yard.any(event.a) : someItem(event);
    if (!item)
        return;
    const std::array<quint32, 3> facts{event.b, ItemYard::factOfSort(m_model.getSortBy().sortBy),
                                       ItemYard::factOfGroup(m_model.getGroupBy().groupBy)};
    changeFact(item, facts[event.d / 4 % facts.size()], event.c);
    m_yard.manager()->announce(item);
}

void ItemSession::changeRemoved(const Event &event)
{
    if (ScriptedItem *item = m_yard.removed(event.a))
        changeFact(item, event.b, event.c);
}

void ItemSession::changeFact(ScriptedItem *item, quint32 fact, quint32 value)
{
    tell(QStringLiteral("change fact %1 of %2 to %3")
             .arg(fact % ItemYard::FactCount)
             .arg(m_yard.describe(item))
             .arg(value));
    ItemYard::change(item, fact, value);
}

void ItemSession::toggleFavourite(const Event &event)
{
    ScriptedItem *item = m_yard.listed(event.a);
    if (!item)
        return;
    tell(QStringLiteral("toggle favourite ") + m_yard.describe(item));
    m_yard.toggleFavourite(item, event.b);
}

void ItemSession::progress(const Event &event)
{
    ScriptedItem *item = m_yard.any(event.a);
    const int kind = int(event.b % 9);
    tell(QStringLiteral("progress of kind %1 of %2").arg(kind).arg(m_yard.describe(item)));
    m_yard.manager()->observers.tell(
        [&](auto *observer) { observer->onDownloadProgressEvent(item, kind, 1, 2); });
}

void ItemSession::finishDownload(const Event &event)
{
    ScriptedItem *item = m_yard.any(event.a);
    const int kind = int(event.b % 9);
    const bool failed = event.c % 2 == 1;
    tell(QStringLiteral("download of kind %1 of %2 %3")
             .arg(kind)
             .arg(m_yard.describe(item),
                  failed ? QStringLiteral("failed") : QStringLiteral("finished")));
    m_yard.manager()->observers.tell(
        [&](auto *observer) { observer->onDownloadFinishedEvent(item, kind, failed); });
}

void ItemSession::clearFolder(const Event &event)
{
    if (m_size.isLasting)
        return;
    ScriptedItemFolder *folder = someFolder(event.a);
    tell(QStringLiteral("clear ") + folder->title);
    if (folder == m_model.folder() && event.b % 2 == 0)
        m_yard.dismissGuests(folder);
    else
        m_yard.emptyOut(folder);
    m_yard.manager()->clear(folder, [&] { m_yard.forget(folder); });
}

void ItemSession::killFolder(const Event &event)
{
    ScriptedItemFolder *folder = someFolder(event.a);
    const INxFolderMedia *shown = m_model.folder();
    if (m_size.isLasting || !m_yard.isMortal(folder))
        return;
    tell(QStringLiteral("destroy ") + folder->title);
    const bool isSudden =
        event.b % 2 == 0 && shown && (folder == shown || folder->contains(shown, true));
    if (isSudden) {
        m_yard.dismissGuests(folder);
        m_yard.forget(folder);
    } else {
        m_yard.emptyOut(folder);
    }
    m_yard.destroy(folder);
}

void ItemSession::makeFolder(const Event &event)
{
    tell(QStringLiteral("make a folder"));
    m_yard.makeFolder(event.a, event.b);
}

/// What a folder is may change without a word to anybody.
void ItemSession::changeFolder(const Event &event)
{
    ScriptedItemFolder *folder = someFolder(event.a);
    constexpr std::array<int, 5> kinds{2, 5, 6, 8, 11};
    const std::array<bool *, 4> flags{&folder->searchResult, &folder->newnessOrdered,
                                      &folder->loaded, &folder->hasMorePages};
    if (event.b % 2 == 0) {
        bool *flag = flags[event.c % flags.size()];
        *flag = !*flag;
        tell(QStringLiteral("flag %1 of %2 is %3")
                 .arg(event.c % flags.size())
                 .arg(folder->title)
                 .arg(*flag));
        return;
    }
    const int kind = kinds[event.c % kinds.size()];
    if (folder->extraKinds.removeAll(kind) == 0)
        folder->extraKinds.append(kind);
    tell(QStringLiteral("extra kind %1 of %2").arg(kind).arg(folder->title));
}

void ItemSession::choosePack(const Event &event)
{
    ScriptedItemFolder *folder = someFolder(event.a);
    folder->pack.clear();
    const QList<INxAbstractMedia *> items = folder->items(true, true);
    for (int i = 0; i < items.size(); ++i) {
        if ((quint32(i) * event.b + event.c) % 3 == 0)
            folder->pack.insert(event.d % 2 == 0 ? 0 : folder->pack.size(), items.at(i));
    }
    tell(QStringLiteral("%1 of %2 are one series").arg(folder->pack.size()).arg(folder->title));
}

void ItemSession::bury(const Event &)
{
    tell(QStringLiteral("destroy what was removed"));
    m_yard.bury();
}
