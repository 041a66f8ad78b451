// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemGroup.h>

#include <NxVBLModel/INxGroupMedia.h>

#include <algorithm>

#include "NxMediaGroupKey_p.h"
#include "NxMediaItemGrouping_p.h"

using namespace NXMEDIALIBRARY;

namespace {

using Items = QList<INxAbstractMedia *>;
using Order = NxMediaItemGroup::Order;

bool isDescending(Order order)
{
    return order != soASC;
}

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
                             const NxMediaItemViewGroup &group, QList<INxAbstractMedia *> &out)
{
    const NxMediaItemGrouping grouping(items, group);
    std::vector<INxGroupMedia *> groups;
    for (const QString &key : grouping.keys())
        groups.push_back(NxMediaItemGrouping::makeGroup(key));
    for (size_t i = 0; i < grouping.groupOf().size(); ++i) {
        if (grouping.groupOf()[i] != NxMediaItemGrouping::NoGroup)
            groups[grouping.groupOf()[i]]->addMember(items[int(i)]);
    }
    QList<INxAbstractMedia *> filled;
    std::copy(groups.begin(), groups.end(), std::back_inserter(filled));
    out = filled;
}

void NxMediaItemGroup::DoGroupByType(const QList<INxAbstractMedia *> &items, Order order,
                                     QList<INxAbstractMedia *> &out)
{
    Group(items, {gbType, order, nullptr}, out);
}

void NxMediaItemGroup::DoGroupByDateCreated(const QList<INxAbstractMedia *> &items, Order order,
                                            QList<INxAbstractMedia *> &out)
{
    Group(items, {gbDateCreated, order, nullptr}, out);
}

void NxMediaItemGroup::DoGroupByDuration(const QList<INxAbstractMedia *> &items, Order order,
                                         QList<INxAbstractMedia *> &out)
{
    Group(items, {gbDuration, order, nullptr}, out);
}

void NxMediaItemGroup::DoGroupByCameraName(const QList<INxAbstractMedia *> &items, Order order,
                                           QList<INxAbstractMedia *> &out)
{
    Group(items, {gbCameraName, order, nullptr}, out);
}

void NxMediaItemGroup::DoGroupByCategory(const QList<INxAbstractMedia *> &items, Order order,
                                         QList<INxAbstractMedia *> &out)
{
    Group(items, {gbCategory, order, nullptr}, out);
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
