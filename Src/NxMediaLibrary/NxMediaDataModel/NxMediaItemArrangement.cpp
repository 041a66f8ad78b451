// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxMediaItemArrangement_p.h"

#include "NxMediaGroupKey_p.h"
#include "NxMediaItemGrouping_p.h"

#include <QSet>

#include <algorithm>

using namespace NXMEDIALIBRARY;

namespace {

using Numbers = NxMediaItemArrangement::Numbers;

// Beyond one in so many, putting all in order anew is no slower.
constexpr size_t FewUnordered = 8;

bool isSame(const NxMediaItemViewGroup &a, const NxMediaItemViewGroup &b)
{
    return a.groupBy == b.groupBy && a.order == b.order;
}

// Which entries of the list are in the shorter one, whose entries stand in the same order.
std::vector<char> marksOf(const NxMediaItemArrangement::Items &list,
                          const NxMediaItemArrangement::Items &part)
{
    std::vector<char> marks(size_t(list.size()), 0);
    auto next = part.begin();
    for (int i = 0; i < list.size() && next != part.end(); ++i) {
        if (list[i] == *next) {
            marks[size_t(i)] = 1;
            ++next;
        }
    }
    return marks;
}

} // namespace

void NxMediaItemArrangement::clear()
{
    *this = NxMediaItemArrangement();
}

void NxMediaItemArrangement::release()
{
    if (m_group.groupBy != gbNone)
        return clear(); // Groups list their members themselves.
    Numbers().swap(m_order);
    Numbers().swap(m_unordered);
    m_insertedSince.clear();
    Numbers().swap(m_groupOf);
    m_hasOrder = false;
    m_hasGroups = false;
    for (Section &section : m_sections)
        section.shown.shrink_to_fit();
}

void NxMediaItemArrangement::setMedia(const Items &media, bool areChangesTold)
{
    closeHoles();
    if (!areChangesTold || !m_isKnown || !m_changes.isEmpty() || m_media != media) {
        m_hasOrder = false;
        m_hasGroups = false;
        m_unordered.clear();
        m_insertedSince.clear();
    }
    m_changes.clear();
    m_isListingMoved = false;
    m_isLastMoved = false;
    m_isKnown = true;
    m_media = media;
    m_sections.clear();
}

void NxMediaItemArrangement::closeHoles()
{
    if (m_holes == 0)
        return;
    renumberOrder();
    Numbers renumbered(size_t(m_media.size()), NoNumber);
    Items closed;
    closed.reserve(m_media.size() - m_holes);
    for (int i = 0; i < m_media.size(); ++i) {
        if (!m_media[i])
            continue;
        renumbered[size_t(i)] = quint32(closed.size());
        closed.append(m_media[i]);
    }
    const auto renumber = [&renumbered](quint32 &number) { number = renumbered[number]; };
    for (Numbers *numbers : {&m_order, &m_unordered}) {
        std::for_each(numbers->begin(), numbers->end(), renumber);
        numbers->erase(std::remove(numbers->begin(), numbers->end(), NoNumber), numbers->end());
    }
    for (Section &section : m_sections)
        std::for_each(section.shown.begin(), section.shown.end(), renumber);
    m_media = closed;
    m_holes = 0;
}

void NxMediaItemArrangement::groupBy(const Group &group)
{
    if (!m_hasGroups || !isSame(group, m_group)) {
        const NxMediaItemGrouping grouping(m_media, group);
        m_keys = grouping.keys();
        m_groupOf = grouping.groupOf();
        m_hasGroups = true;
    }
    m_group = group;
    m_sections.clear();
    for (const QString &key : m_keys)
        m_sections.push_back({key, {}});
    if (group.groupBy == gbNone)
        m_sections.push_back({});
}

std::vector<NxMediaItemArrangement::Items> NxMediaItemArrangement::members() const
{
    std::vector<Items> members(m_sections.size());
    for (size_t i = 0; i < m_groupOf.size(); ++i) {
        if (m_groupOf[i] != NxMediaItemGrouping::NoGroup)
            members[m_groupOf[i]].append(m_media[int(i)]);
    }
    return members;
}

void NxMediaItemArrangement::order(const Sort &sort)
{
    if (!m_hasOrder || sort != m_sort || m_unordered.size() > m_order.size() / FewUnordered) {
        m_order = NxMediaItemOrdering(sort).places(m_media);
        m_unordered.clear();
        m_insertedSince.clear();
    }
    renumberOrder();
    m_hasOrder = true;
    m_sort = sort;
    if (!m_unordered.empty())
        placeUnordered();
    m_isLastOrdered = true;
}

// What was inserted since left all others in their order, so these count on around it.
void NxMediaItemArrangement::renumberOrder()
{
    if (m_insertedSince.isEmpty())
        return;
    const QSet<INxAbstractMedia *> inserted(m_insertedSince.begin(), m_insertedSince.end());
    m_insertedSince.clear();
    Numbers renumbered;
    renumbered.reserve(size_t(m_media.size()));
    for (int i = 0; i < m_media.size(); ++i) {
        if (!inserted.contains(m_media[i]))
            renumbered.push_back(quint32(i));
    }
    for (quint32 &number : m_order) {
        Q_ASSERT(number < renumbered.size());
        number = renumbered[number];
    }
}

void NxMediaItemArrangement::placeUnordered()
{
    std::vector<char> isUnordered(size_t(m_media.size()), 0);
    for (const quint32 number : m_unordered)
        isUnordered[number] = 1;
    m_order.erase(std::remove_if(m_order.begin(), m_order.end(),
                                 [&](quint32 number) { return isUnordered[number] != 0; }),
                  m_order.end());
    std::sort(m_unordered.begin(), m_unordered.end());
    m_unordered.erase(std::unique(m_unordered.begin(), m_unordered.end()), m_unordered.end());
    Items few;
    for (const quint32 number : m_unordered)
        few.append(m_media.at(int(number)));

    Numbers whole;
    whole.reserve(m_order.size() + m_unordered.size());
    Numbers::const_iterator from = m_order.cbegin();
    for (const quint32 place : NxMediaItemOrdering(m_sort).places(few)) {
        const auto spot = spotIn(from, m_order.cend(), m_unordered[place]);
        whole.insert(whole.end(), from, spot);
        whole.push_back(m_unordered[place]);
        from = spot;
    }
    whole.insert(whole.end(), from, m_order.cend());
    m_order.swap(whole);
    m_unordered.clear();
}

void NxMediaItemArrangement::show(const Items &passing, const Sort &sort)
{
    order(sort);
    for (Section &section : m_sections)
        section.shown.clear();
    const bool isGrouped = m_group.groupBy != gbNone;
    if (!isGrouped && passing.size() == m_media.size()) {
        m_sections.front().shown = m_order;
    } else {
        const std::vector<char> passes = marksOf(m_media, passing);
        for (const quint32 number : m_order) {
            if (passes[number])
                m_sections[isGrouped ? m_groupOf[number] : 0].shown.push_back(number);
        }
    }
    for (Section &section : m_sections)
        section.hasRows = !section.shown.empty();
    m_bareSections = 0;
}

bool NxMediaItemArrangement::isArrangedBy(const Group &group, const Sort &sort) const
{
    return m_isKnown && isSame(group, m_group) && sort == m_sort;
}

NxMediaItemArrangement::Items NxMediaItemArrangement::shown(int section) const
{
    const Numbers &numbers = m_sections[size_t(section)].shown;
    Items items;
    items.reserve(int(numbers.size()));
    for (const quint32 number : numbers)
        items.append(m_media[int(number)]);
    return items;
}

quint32 NxMediaItemArrangement::append(INxAbstractMedia *media)
{
    const quint32 number = quint32(m_media.size());
    m_media.append(media);
    m_isLastOrdered = false;
    m_hasGroups = false;
    if (m_hasOrder)
        m_unordered.push_back(number);
    return number;
}

quint32 NxMediaItemArrangement::numberOf(const INxAbstractMedia *media) const
{
    const auto found = std::find(m_media.begin(), m_media.end(), media);
    return media && found != m_media.end() ? quint32(found - m_media.begin()) : NoNumber;
}

int NxMediaItemArrangement::findSection(INxAbstractMedia *media, QString *missingKey) const
{
    if (m_group.groupBy == gbNone)
        return 0;
    const NxMediaItemGrouping grouping({media}, m_group);
    const QString &key = grouping.keys()[grouping.groupOf().front()];
    const bool isDescending = m_group.order != soASC;
    const auto first =
        std::lower_bound(m_sections.begin(), m_sections.end(), key,
                         [isDescending](const Section &section, const QString &k) {
                             return NxMediaGroupKey::isBefore(section.key, k, isDescending);
                         });
    for (auto section = first; section != m_sections.end(); ++section) {
        if (section->key == key)
            return int(section - m_sections.begin());
        if (NxMediaGroupKey::isBefore(key, section->key, isDescending))
            break;
    }
    *missingKey = key;
    return -1;
}

int NxMediaItemArrangement::insertSection(const QString &key)
{
    const bool isDescending = m_group.order != soASC;
    const auto next =
        std::upper_bound(m_sections.begin(), m_sections.end(), key,
                         [isDescending](const QString &k, const Section &section) {
                             return NxMediaGroupKey::isBefore(k, section.key, isDescending);
                         });
    const int section = int(next - m_sections.begin());
    m_sections.insert(next, Section{key, {}});
    return section;
}

Numbers::const_iterator NxMediaItemArrangement::spotIn(Numbers::const_iterator begin,
                                                       Numbers::const_iterator end,
                                                       quint32 number) const
{
    const NxMediaItemOrdering ordering(m_sort);
    const INxAbstractMedia *media = m_media.at(int(number));
    return std::lower_bound(begin, end, number, [&](quint32 standing, quint32) {
        const int order = ordering.compare(m_media.at(int(standing)), media);
        return order != 0 ? order < 0 : standing < number;
    });
}

int NxMediaItemArrangement::show(quint32 number, int section)
{
    Section &into = m_sections[size_t(section)];
    if (into.hasRows && into.shown.empty())
        --m_bareSections;
    const auto spot =
        into.shown.insert(spotIn(into.shown.cbegin(), into.shown.cend(), number), number);
    into.hasRows = true;
    return int(spot - into.shown.begin());
}

NxMediaItemArrangement::Place NxMediaItemArrangement::placeOf(quint32 number) const
{
    for (size_t section = 0; section < m_sections.size(); ++section) {
        const Numbers &shown = m_sections[section].shown;
        const auto spot = std::find(shown.begin(), shown.end(), number);
        if (spot != shown.end())
            return {int(section), int(spot - shown.begin())};
    }
    return {-1, -1};
}

void NxMediaItemArrangement::hide(const Place &place)
{
    Numbers &shown = m_sections[size_t(place.section)].shown;
    shown.erase(shown.begin() + place.at);
    if (shown.empty())
        ++m_bareSections;
}

void NxMediaItemArrangement::remove(quint32 number)
{
    renumberOrder(); // A hole tells not who stood there.
    m_hasGroups = false;
    m_changes.removeAll(m_media.at(int(number)));
    m_media[int(number)] = nullptr;
    ++m_holes;
}

void NxMediaItemArrangement::reorder(quint32 number)
{
    m_hasGroups = false;
    if (m_hasOrder)
        m_unordered.push_back(number);
}

void NxMediaItemArrangement::noteChange(INxAbstractMedia *media)
{
    if (m_isKnown && m_changes.size() <= ManyChanges && !m_changes.contains(media))
        m_changes.append(media);
}

bool NxMediaItemArrangement::hasEqualNeighbour(quint32 number) const
{
    const Place place = placeOf(number);
    if (place.section < 0)
        return false;
    const Numbers &shown = m_sections[size_t(place.section)].shown;
    const NxMediaItemOrdering ordering(m_sort);
    const auto isEqual = [&](size_t at) {
        return ordering.compare(m_media.at(int(shown[at])), m_media.at(int(number))) == 0;
    };
    const size_t at = size_t(place.at);
    return (at > 0 && isEqual(at - 1)) || (at + 1 < shown.size() && isEqual(at + 1));
}

quint32 NxMediaItemArrangement::listedNumberOfLast(const Items &listing)
{
    closeHoles();
    if (m_media.isEmpty() || listing.size() != m_media.size())
        return NoNumber;
    const auto [here, there] = std::mismatch(m_media.cbegin(), m_media.cend(), listing.begin());
    if (here == m_media.cend())
        return quint32(m_media.size()) - 1;
    const bool isOnlyMoved =
        *there == m_media.last() && std::equal(here, m_media.cend() - 1, there + 1);
    return isOnlyMoved ? quint32(there - listing.begin()) : NoNumber;
}

void NxMediaItemArrangement::renumberLast(quint32 number)
{
    const quint32 last = quint32(m_media.size()) - 1;
    const auto renumber = [number, last](quint32 &one) {
        one = one == last ? number : one >= number ? one + 1 : one;
    };
    if (m_hasOrder && m_isLastOrdered) {
        m_order.erase(std::remove(m_order.begin(), m_order.end(), last), m_order.end());
        m_unordered.push_back(last);
    }
    if (m_hasOrder)
        m_insertedSince.append(m_media.last());
    std::for_each(m_unordered.begin(), m_unordered.end(), renumber);
    for (Section &section : m_sections)
        std::for_each(section.shown.begin(), section.shown.end(), renumber);
    m_media.move(int(last), int(number));
}

void NxMediaItemArrangement::setSettled()
{
    m_changes.clear();
    m_isListingMoved = false;
    m_isLastMoved = false;
}
