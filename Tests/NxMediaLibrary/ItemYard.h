// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QVector>

#include <memory>
#include <vector>

#include "ScriptedItemManager.h"

/// A media library for random tests: sections, folders of the user, search folders, and items whose
/// few names, dates and lengths are often the same.
///
/// Everything is chosen by a number, taken modulo what there is, so that whatever happens may also
/// be left out.
class ItemYard
{
public:
    static constexpr int FactCount = 24;

    ItemYard();

    [[nodiscard]] ScriptedItemManager *manager() { return &m_manager; }

    /// All folders but the hidden root; never empty.
    [[nodiscard]] QVector<ScriptedItemFolder *> folders() const;
    [[nodiscard]] ScriptedItemFolder *folder(quint32 number) const;
    [[nodiscard]] ScriptedItemFolder *favourites() const { return m_favourites; }
    /// Items at home in a folder. Null when there are none.
    [[nodiscard]] ScriptedItem *listed(quint32 number) const;
    /// Items that were removed and may come back. Null when there are none.
    [[nodiscard]] ScriptedItem *removed(quint32 number) const;
    /// Any item. Null when there is none.
    [[nodiscard]] ScriptedItem *any(quint32 number) const;
    [[nodiscard]] int itemCount() const { return int(m_items.size()); }

    /// In no folder yet.
    ScriptedItem *makeItem(quint32 number);
    static void change(ScriptedItem *item, quint32 fact, quint32 value);
    /// The fact by which media stand when sorted, or grouped, by that key.
    [[nodiscard]] static quint32 factOfSort(int key);
    [[nodiscard]] static quint32 factOfGroup(int key);
    [[nodiscard]] static QString someName(quint32 number);
    [[nodiscard]] static QDateTime someDate(quint32 number);
    /// Destroys what was removed; addresses may be used again.
    void bury();

    void makeFolder(quint32 parent, quint32 kind);
    /// Takes out the items of the folder and of those below, as an engine does before either dies.
    void emptyOut(ScriptedItemFolder *folder);
    void take(ScriptedItem *item);
    /// What is at home in the folder or below is a favourite no more.
    void dismissGuests(ScriptedItemFolder *folder);
    /// Of folders that do not list it.
    void leavePacks(ScriptedItem *item);
    /// Without a word to the observers.
    void forget(ScriptedItemFolder *folder);
    /// Makes it a favourite, or one no more.
    void toggleFavourite(ScriptedItem *item, quint32 place);
    /// Only a search folder or one of the user's. Its items must have been taken out or forgotten.
    void destroy(ScriptedItemFolder *folder);
    [[nodiscard]] bool isMortal(const ScriptedItemFolder *folder) const;

    /// A name that tells it from all others.
    [[nodiscard]] QString describe(const void *media) const;

private:
    [[nodiscard]] ScriptedItem *pick(quint32 number, bool isListed) const;
    void dismissGuest(ScriptedItem *item);

    std::vector<std::unique_ptr<ScriptedItem>> m_items;
    QHash<const void *, int> m_serials;
    int m_nextSerial = 1;
    ScriptedItemFolder m_root;
    std::vector<std::unique_ptr<ScriptedItemFolder>> m_searches;
    ScriptedItemFolder *m_favourites; // Owned by the root.
    ScriptedItemManager m_manager;
};
