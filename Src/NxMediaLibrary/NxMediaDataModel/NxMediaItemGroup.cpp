// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemGroup.h>

#include <NxMediaLibrary/NxMediaDataModel/NxNaturalOrder.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <QHash>

#include <algorithm>
#include <array>
#include <numeric>

#include "NxLocalDays_p.h"
#include "NxMediaGroupKey_p.h"
#include "NxMediaItemFacts_p.h"

namespace {

using Items = QList<INxAbstractMedia *>;
using Order = NxMediaItemGroup::Order;

constexpr qint64 MsecPerMinute = 60000;

bool isDescending(Order order)
{
    return order != NXMEDIALIBRARY::soASC;
}

INxGroupMedia *makeGroup(const QString &key)
{
    INxGroupMedia *group = INxGroupMedia::createGroup();
    group->setGroupKey(key);
    group->setTitle(NxMediaGroupKey::title(key));
    return group;
}

using ClassOf = int (*)(const INxAbstractMedia *media);

// Groups that are always there, from the first to the last.
void groupByClass(const Items &items, Order order, NxMediaGroupKey::Fixed first, int count,
                  ClassOf classOf, Items &out)
{
    std::vector<INxGroupMedia *> groups;
    for (int i = 0; i < count; ++i)
        groups.push_back(makeGroup(NxMediaGroupKey::ofFixed(NxMediaGroupKey::Fixed(first + i))));
    for (INxAbstractMedia *media : items) {
        if (media)
            groups[size_t(classOf(media))]->addMember(media);
    }
    if (isDescending(order))
        std::reverse(groups.begin(), groups.end());
    Items filled;
    for (INxGroupMedia *group : groups)
        filled.append(group);
    out = filled;
}

int typeClassOf(const INxAbstractMedia *media)
{
    return int(NxMediaItemFacts::typeClass(media));
}

int durationClassOf(const INxAbstractMedia *media)
{
    static constexpr std::array<qint64, 4> bounds = {MsecPerMinute, 5 * MsecPerMinute,
                                                     30 * MsecPerMinute, 60 * MsecPerMinute};
    const qint64 msec = NxMediaItemFacts::durationMsec(media);
    return int(std::upper_bound(bounds.begin(), bounds.end(), msec) - bounds.begin());
}

// Groups that are made as their first members come; media without a value go to one more.
template<typename Value>
class OpenGroups
{
public:
    void add(const Value &value, INxAbstractMedia *media)
    {
        if (m_groups.empty() || m_values[m_last] != value)
            m_last = placeOf(value);
        m_groups[m_last]->addMember(media);
    }
    void addWithoutValue(INxAbstractMedia *media)
    {
        if (!m_none)
            m_none = makeGroup(NxMediaGroupKey::ofFixed(NxMediaGroupKey::None));
        m_none->addMember(media);
    }
    const std::vector<Value> &values() const { return m_values; }
    /// In the order of the places given.
    Items take(const std::vector<quint32> &places) const
    {
        Items groups;
        for (const quint32 place : places)
            groups.append(m_groups[place]);
        if (m_none)
            groups.append(m_none);
        return groups;
    }

private:
    size_t placeOf(const Value &value)
    {
        const auto known = m_places.constFind(value);
        if (known != m_places.constEnd())
            return *known;
        const size_t place = m_groups.size();
        m_places.insert(value, place);
        m_values.push_back(value);
        m_groups.push_back(makeGroup(keyOf(value)));
        return place;
    }
    static QString keyOf(qint64 day) { return NxMediaGroupKey::ofDay(day); }
    static QString keyOf(const QString &text) { return NxMediaGroupKey::ofText(text); }

    QHash<Value, size_t> m_places;
    std::vector<Value> m_values;
    std::vector<INxGroupMedia *> m_groups; // Handed out by take().
    INxGroupMedia *m_none = nullptr;
    size_t m_last = 0; // Neighbours often share their group.
};

using TextOf = QString (INxAbstractMediaItem::*)() const;

void groupByText(const Items &items, Order order, TextOf textOf, Items &out)
{
    OpenGroups<QString> groups;
    for (INxAbstractMedia *media : items) {
        if (!media)
            continue;
        const INxAbstractMediaItem *item = NxMediaItemFacts::itemOf(media);
        const QString text = item ? (item->*textOf)() : QString();
        if (text.isEmpty())
            groups.addWithoutValue(media);
        else
            groups.add(text, media);
    }
    out = groups.take(NxNaturalOrder::sorted(groups.values(), isDescending(order)));
}

std::vector<quint32> placesByDay(const std::vector<qint64> &days, Order order)
{
    std::vector<quint32> places(days.size());
    std::iota(places.begin(), places.end(), 0u);
    std::sort(places.begin(), places.end(), [&days, order](quint32 a, quint32 b) {
        return isDescending(order) ? days[b] < days[a] : days[a] < days[b];
    });
    return places;
}

using GroupFunction = void (*)(const Items &items, Order order, Items &out);

// By NXMEDIALIBRARY::NxMediaItemViewGroupBy.
constexpr std::array<GroupFunction, NXMEDIALIBRARY::gbCategory + 1> GroupFunctions = {
    nullptr,
    &NxMediaItemGroup::DoGroupByType,
    &NxMediaItemGroup::DoGroupByDateCreated,
    &NxMediaItemGroup::DoGroupByDuration,
    &NxMediaItemGroup::DoGroupByCameraName,
    &NxMediaItemGroup::DoGroupByCategory,
};

INxGroupMedia *groupOfKey(const Items &groups, const QString &key)
{
    for (INxAbstractMedia *media : groups) {
        auto *group = dynamic_cast<INxGroupMedia *>(media);
        if (group && group->groupKey() == key)
            return group;
    }
    return nullptr;
}

void insertGroup(Items &groups, INxGroupMedia *added, bool descending)
{
    const QString key = added->groupKey();
    const auto next = std::find_if(groups.begin(), groups.end(), [&](INxAbstractMedia *media) {
        const auto *group = dynamic_cast<const INxGroupMedia *>(media);
        return group && NxMediaGroupKey::isBefore(key, group->groupKey(), descending);
    });
    groups.insert(next, added);
}

void mergeOrAdd(Items &groups, INxGroupMedia *added, bool descending)
{
    const Items members = added->members();
    INxGroupMedia *known = groupOfKey(groups, added->groupKey());
    if (!known && !members.isEmpty()) {
        insertGroup(groups, added, descending);
        return;
    }
    for (INxAbstractMedia *member : members)
        known->addMember(member);
    INxGroupMedia::releaseGroup(added);
}

} // namespace

void NxMediaItemGroup::Group(const QList<INxAbstractMedia *> &items,
                             const NXMEDIALIBRARY::NxMediaItemViewGroup &group,
                             QList<INxAbstractMedia *> &out)
{
    const qint64 key = group.groupBy;
    if (key > NXMEDIALIBRARY::gbNone && key <= NXMEDIALIBRARY::gbCategory)
        GroupFunctions[size_t(key)](items, group.order, out);
    else
        out.clear();
}

void NxMediaItemGroup::DoGroupByType(const QList<INxAbstractMedia *> &items, Order order,
                                     QList<INxAbstractMedia *> &out)
{
    groupByClass(items, order, NxMediaGroupKey::Video, MediaTypeClassCount, typeClassOf, out);
}

void NxMediaItemGroup::DoGroupByDateCreated(const QList<INxAbstractMedia *> &items, Order order,
                                            QList<INxAbstractMedia *> &out)
{
    OpenGroups<qint64> groups;
    Items dated;
    std::vector<qint64> moments;
    for (INxAbstractMedia *media : items) {
        const INxAbstractMediaItem *item = NxMediaItemFacts::itemOf(media);
        const QDateTime created = item ? item->dateCreated() : QDateTime();
        if (created.isValid()) {
            dated.append(media);
            moments.push_back(created.toMSecsSinceEpoch());
        } else if (media) {
            groups.addWithoutValue(media);
        }
    }
    const NxLocalDays days(moments);
    for (size_t i = 0; i < moments.size(); ++i)
        groups.add(days.julianDay(moments[i]), dated.at(int(i)));
    out = groups.take(placesByDay(groups.values(), order));
}

void NxMediaItemGroup::DoGroupByDuration(const QList<INxAbstractMedia *> &items, Order order,
                                         QList<INxAbstractMedia *> &out)
{
    constexpr int count = NxMediaGroupKey::OneHourAndMore - NxMediaGroupKey::BelowOneMinute + 1;
    groupByClass(items, order, NxMediaGroupKey::BelowOneMinute, count, durationClassOf, out);
}

void NxMediaItemGroup::DoGroupByCameraName(const QList<INxAbstractMedia *> &items, Order order,
                                           QList<INxAbstractMedia *> &out)
{
    groupByText(items, order, &INxAbstractMediaItem::cameraName, out);
}

void NxMediaItemGroup::DoGroupByCategory(const QList<INxAbstractMedia *> &items, Order order,
                                         QList<INxAbstractMedia *> &out)
{
    groupByText(items, order, &INxAbstractMediaItem::categoryName, out);
}

void NxMediaItemGroup::MergeOrAddGroup(QList<INxAbstractMedia *> &groups,
                                       const QList<INxAbstractMedia *> &newGroups,
                                       const NXMEDIALIBRARY::NxMediaItemViewGroup &group)
{
    for (INxAbstractMedia *media : newGroups) {
        if (auto *added = dynamic_cast<INxGroupMedia *>(media))
            mergeOrAdd(groups, added, isDescending(group.order));
    }
}

QString NxMediaItemGroup::getGroupByTranslateText(const QString &text)
{
    return NxMediaGroupKey::translated(text);
}

QString NxMediaItemGroup::getGroupTitle(const QString &key)
{
    return NxMediaGroupKey::title(key);
}
