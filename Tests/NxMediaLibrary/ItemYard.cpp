// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ItemYard.h"

#include <algorithm>
#include <array>

using namespace NXVBLMODEL;

namespace {

template<typename Value, size_t Count>
const Value &choose(const std::array<Value, Count> &values, quint32 number)
{
    return values[number % Count];
}

void appendAll(const ScriptedItemFolder *folder, QVector<ScriptedItemFolder *> *list)
{
    for (const auto &child : folder->children) {
        list->append(child.get());
        appendAll(child.get(), list);
    }
}

std::unique_ptr<ScriptedItemFolder> section(NxFolderKind kind, const QString &name)
{
    return std::make_unique<ScriptedItemFolder>(name, kind);
}

} // namespace

ItemYard::ItemYard()
{
    ScriptedItemFolder *project = m_root.append(section(fkProject, QStringLiteral("Project")));
    m_root.append(section(fkShared, QStringLiteral("Shared")));
    ScriptedItemFolder *online = m_root.append(section(fkOnline, QStringLiteral("Online")));
    m_favourites = m_root.append(section(fkFavourites, QStringLiteral("Favourites")));
    m_root.append(section(fkDownloaded, QStringLiteral("Downloaded")));
    project->append(std::make_unique<ScriptedItemFolder>(QStringLiteral("Day 1")))
        ->append(std::make_unique<ScriptedItemFolder>(QStringLiteral("Morning")));
    online->append(std::make_unique<ScriptedItemFolder>(QStringLiteral("Mine"), fkCustom));
    makeFolder(0, 0);
}

QVector<ScriptedItemFolder *> ItemYard::folders() const
{
    QVector<ScriptedItemFolder *> list;
    appendAll(&m_root, &list);
    for (const auto &search : m_searches)
        list.append(search.get());
    return list;
}

ScriptedItemFolder *ItemYard::folder(quint32 number) const
{
    const QVector<ScriptedItemFolder *> all = folders();
    return all.at(int(number % quint32(all.size())));
}

ScriptedItem *ItemYard::pick(quint32 number, bool isListed) const
{
    std::vector<ScriptedItem *> found;
    for (const auto &item : m_items) {
        if ((item->home != nullptr) == isListed)
            found.push_back(item.get());
    }
    return found.empty() ? nullptr : found[number % found.size()];
}

ScriptedItem *ItemYard::listed(quint32 number) const
{
    return pick(number, true);
}

ScriptedItem *ItemYard::removed(quint32 number) const
{
    return pick(number, false);
}

ScriptedItem *ItemYard::any(quint32 number) const
{
    return m_items.empty() ? nullptr : m_items[number % m_items.size()].get();
}

ScriptedItem *ItemYard::makeItem(quint32 number)
{
    m_items.push_back(std::make_unique<ScriptedItem>());
    ScriptedItem *item = m_items.back().get();
    m_serials.insert(item, m_nextSerial++);
    for (quint32 fact = 0; fact < FactCount; ++fact)
        change(item, fact, number * (2 * fact + 1) + number / (fact + 2));
    return item;
}

void ItemYard::bury()
{
    const auto kept = std::stable_partition(m_items.begin(), m_items.end(),
                                            [](const auto &item) { return item->home != nullptr; });
    std::for_each(kept, m_items.end(), [this](const auto &item) { m_serials.remove(item.get()); });
    m_items.erase(kept, m_items.end());
}

void ItemYard::makeFolder(quint32 parent, quint32 kind)
{
    constexpr std::array<int, 4> kinds{fkNone, fkNone, fkCustom, fkRecent};
    if (folders().size() > 14)
        return;
    if (kind % 4 == 0) {
        m_searches.push_back(
            std::make_unique<ScriptedItemFolder>(QStringLiteral("search %1").arg(m_nextSerial++)));
        m_searches.back()->searchFolder = true;
        m_searches.back()->searchResult = true;
        return;
    }
    ScriptedItemFolder *above = folder(parent);
    if (above != m_favourites && !above->searchFolder)
        above->append(std::make_unique<ScriptedItemFolder>(
            QStringLiteral("folder %1").arg(m_nextSerial++), choose(kinds, kind)));
}

void ItemYard::emptyOut(ScriptedItemFolder *folder)
{
    const QList<INxAbstractMedia *> items = folder->items(true, true);
    for (INxAbstractMedia *media : items) {
        auto *item = static_cast<ScriptedItem *>(media);
        if (folder == m_favourites)
            dismissGuest(item);
        if (item->home && (item->home == folder || folder->contains(item->home, true)))
            take(item);
    }
}

void ItemYard::take(ScriptedItem *item)
{
    dismissGuest(item);
    m_manager.take(item);
    leavePacks(item);
}

void ItemYard::dismissGuests(ScriptedItemFolder *folder)
{
    const QList<INxAbstractMedia *> items = folder->items(true, true);
    for (INxAbstractMedia *media : items)
        dismissGuest(static_cast<ScriptedItem *>(media));
}

void ItemYard::dismissGuest(ScriptedItem *item)
{
    if (item->home == m_favourites || !m_favourites->media.contains(item))
        return;
    m_manager.takeGuest(m_favourites, item, [item] {
        item->favourite = false;
        item->favoured = QDateTime();
    });
    leavePacks(item);
}

void ItemYard::leavePacks(ScriptedItem *item)
{
    for (ScriptedItemFolder *folder : folders()) {
        if (!folder->containsMedia(item, true))
            folder->pack.removeAll(item);
    }
}

void ItemYard::forget(ScriptedItemFolder *folder)
{
    const QList<INxAbstractMedia *> items = folder->items(true, true);
    QVector<ScriptedItemFolder *> emptied{folder};
    appendAll(folder, &emptied);
    for (ScriptedItemFolder *one : qAsConst(emptied))
        one->media.clear();
    for (INxAbstractMedia *media : items) {
        auto *item = static_cast<ScriptedItem *>(media);
        item->home = nullptr;
        leavePacks(item);
    }
}

void ItemYard::toggleFavourite(ScriptedItem *item, quint32 place)
{
    if (item->home == m_favourites)
        return;
    if (item->favourite) {
        dismissGuest(item);
        return;
    }
    const int at = int(place % quint32(m_favourites->media.size() + 1));
    m_manager.insertGuest(m_favourites, at, item, [item, place] {
        item->favourite = true;
        item->favoured = someDate(place);
    });
}

bool ItemYard::isMortal(const ScriptedItemFolder *folder) const
{
    return folder->searchFolder || folder->above != &m_root;
}

void ItemYard::destroy(ScriptedItemFolder *folder)
{
    if (folder->above) {
        folder->above->destroy(folder);
        return;
    }
    const auto search = std::find_if(m_searches.begin(), m_searches.end(),
                                     [folder](const auto &one) { return one.get() == folder; });
    const std::unique_ptr<ScriptedItemFolder> dying = std::move(*search);
    m_searches.erase(search);
}

QString ItemYard::describe(const void *media) const
{
    const int serial = m_serials.value(media);
    if (serial == 0)
        return media ? QStringLiteral("something unknown") : QStringLiteral("nothing");
    const auto item = std::find_if(m_items.begin(), m_items.end(),
                                   [media](const auto &one) { return one.get() == media; });
    return QStringLiteral("#%1 \"%2\"").arg(serial).arg((*item)->title);
}
