// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ItemSession.h"

#include <array>

namespace {

constexpr quint32 Numbers = 1000;

} // namespace

const std::array<ItemSession::Kind, 37> ItemSession::s_kinds{{
    {50, &ItemSession::addNew},
    {25, &ItemSession::bringBack},
    {28, &ItemSession::remove},
    {14, &ItemSession::rename},
    {16, &ItemSession::move},
    {20, &ItemSession::moveQuietly},
    {80, &ItemSession::change},
    {6, &ItemSession::changeRemoved},
    {12, &ItemSession::toggleFavourite},
    {8, &ItemSession::progress},
    {10, &ItemSession::finishDownload},
    {1, &ItemSession::clearFolder},
    {1, &ItemSession::killFolder},
    {3, &ItemSession::makeFolder},
    {9, &ItemSession::changeFolder},
    {10, &ItemSession::choosePack},
    {14, &ItemSession::finishChanges},
    {4, &ItemSession::tellFetchState},
    {5, &ItemSession::tellOfNothing},
    {5, &ItemSession::tellOfAddition},
    {1, &ItemSession::tellLimit},
    {6, &ItemSession::bury},
    {14, &ItemSession::load},
    {2, &ItemSession::clearModel},
    {16, &ItemSession::setFilter},
    {10, &ItemSession::searchSimilar},
    {20, &ItemSession::setSortBy},
    {12, &ItemSession::setSortEnable},
    {24, &ItemSession::setGroupBy},
    {40, &ItemSession::toggleHeader},
    {6, &ItemSession::toggleRow},
    {8, &ItemSession::viewMore},
    {6, &ItemSession::updateSimilar},
    {9, &ItemSession::setItemCountPerLine},
    {2, &ItemSession::setFetchMoreEnable},
    {2, &ItemSession::changeLanguage},
    {3, &ItemSession::idle},
}};

ItemSession::Event ItemSession::randomEvent(std::mt19937 &random)
{
    quint32 total = 0;
    for (const Kind &kind : s_kinds)
        total += quint32(kind.weight);
    quint32 left = quint32(random()) % total;
    quint32 what = 0;
    while (left >= quint32(s_kinds[what].weight))
        left -= quint32(s_kinds[what++].weight);
    const auto number = [&random] { return quint32(random()) % Numbers; };
    const quint32 a = number();
    const quint32 b = number();
    const quint32 c = number();
    return {what, a, b, c, number()};
}

ItemSession::ItemSession(const Yard &yard, bool tells)
    : m_size(yard),
      m_tells(tells),
      m_model(NXVBLMODEL::mctMedia, nullptr)
{
    m_yard.manager()->registerObserver(&m_plain);
    m_model.subscribeMediaItemManager(m_yard.manager());
    listen();
    for (int i = 0; i < yard.first; ++i) {
        ScriptedItem *item = m_yard.makeItem(quint32(i) * 37);
        ScriptedItemFolder *folder = m_yard.folder(quint32(i) / 5);
        m_yard.manager()->insert(folder, folder->media.size(), item);
    }
}

ItemSession::~ItemSession()
{
    m_yard.manager()->unregisterObserver(&m_plain);
}

void ItemSession::perform(const Event &event)
{
    (this->*s_kinds[event.what].handler)(event);
    m_yard.manager()->meanwhile = nullptr;
}

void ItemSession::tell(const QString &what)
{
    if (m_tells)
        m_story.append(what);
}

/// Most events concern what is shown.
ScriptedItemFolder *ItemSession::someFolder(quint32 number) const
{
    auto *shown = static_cast<ScriptedItemFolder *>(m_model.folder());
    return shown && number % 3 != 0 ? shown : m_yard.folder(number / 3);
}

/// Now and then somebody else acts while an item is being added.
void ItemSession::planMeanwhile(quint32 number)
{
    constexpr std::array<Handler, 5> acts{&ItemSession::setSortBy, &ItemSession::setGroupBy,
                                          &ItemSession::setFilter, &ItemSession::toggleHeader,
                                          &ItemSession::change};
    constexpr quint32 seldom = 15;
    if (number % seldom != 0)
        return;
    const quint32 which = number / seldom;
    m_yard.manager()->meanwhile = [this, which, act = acts[which % acts.size()]] {
        tell(QStringLiteral("  meanwhile:"));
        if (which % 10 == 0)
            loadBoth(nullptr);
        else if (which % 2 == 0)
            loadBoth(someFolder(which));
        else
            (this->*act)({0, which, which * 3, which * 7, which * 5});
    };
}
