// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxMediaItemGrouping_p.h"

#include <NxMediaLibrary/NxMediaDataModel/NxNaturalOrder.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxGroupMedia.h>

#include <QHash>

#include <algorithm>
#include <array>
#include <numeric>

#include "NxLocalDays_p.h"
#include "NxMediaAhead_p.h"
#include "NxMediaGroupKey_p.h"
#include "NxMediaItemFacts_p.h"

using namespace NXMEDIALIBRARY;

namespace {

constexpr qint64 MsecPerMinute = 60000;
constexpr int DurationClassCount =
    NxMediaGroupKey::OneHourAndMore - NxMediaGroupKey::BelowOneMinute + 1;

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

QString cameraOf(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = NxMediaItemFacts::itemOf(media);
    return item ? item->cameraName() : QString();
}

QString categoryOf(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = NxMediaItemFacts::itemOf(media);
    return item ? item->categoryName() : QString();
}

QString keyOf(qint64 day)
{
    return NxMediaGroupKey::ofDay(day);
}

QString keyOf(const QString &text)
{
    return NxMediaGroupKey::ofText(text);
}

// Numbers values as they come; what has no value gets a number behind all others.
template<typename Value>
class OpenGroups
{
public:
    static constexpr quint32 WithoutValue = NxMediaItemGrouping::NoGroup - 1;

    quint32 numberOf(const Value &value)
    {
        if (m_values.empty() || m_values[m_last] != value) {
            const auto known = m_numbers.constFind(value);
            m_last = known == m_numbers.constEnd() ? add(value) : *known;
        }
        return m_last;
    }
    quint32 numberWithoutValue()
    {
        m_hasWithoutValue = true;
        return WithoutValue;
    }
    const std::vector<Value> &values() const { return m_values; }

    /// Lets the numbers follow the order of the places, and answers the keys in that order.
    std::vector<QString> settle(const std::vector<quint32> &places,
                                std::vector<quint32> &groupOf) const
    {
        std::vector<QString> keys;
        std::vector<quint32> numbers(places.size());
        for (const quint32 place : places) {
            numbers[place] = quint32(keys.size());
            keys.push_back(keyOf(m_values[place]));
        }
        const quint32 last = quint32(keys.size());
        for (quint32 &group : groupOf) {
            if (group != NxMediaItemGrouping::NoGroup)
                group = group == WithoutValue ? last : numbers[group];
        }
        if (m_hasWithoutValue)
            keys.push_back(NxMediaGroupKey::ofFixed(NxMediaGroupKey::None));
        return keys;
    }

private:
    quint32 add(const Value &value)
    {
        const quint32 number = quint32(m_values.size());
        m_numbers.insert(value, number);
        m_values.push_back(value);
        return number;
    }

    QHash<Value, quint32> m_numbers;
    std::vector<Value> m_values;
    bool m_hasWithoutValue = false;
    quint32 m_last = 0; // Neighbours often share their group.
};

std::vector<quint32> placesOfDays(const std::vector<qint64> &days, bool isDescending)
{
    std::vector<quint32> places(days.size());
    std::iota(places.begin(), places.end(), 0u);
    std::sort(places.begin(), places.end(), [&days, isDescending](quint32 a, quint32 b) {
        return isDescending ? days[b] < days[a] : days[a] < days[b];
    });
    return places;
}

} // namespace

NxMediaItemGrouping::NxMediaItemGrouping(const QList<INxAbstractMedia *> &media,
                                         const NxMediaItemViewGroup &group)
    : m_isDescending(group.order != soASC)
{
    switch (group.groupBy) {
    case gbType:
        byClass(media, NxMediaGroupKey::Video, MediaTypeClassCount, &typeClassOf);
        break;
    case gbDateCreated:
        byDay(media);
        break;
    case gbDuration:
        byClass(media, NxMediaGroupKey::BelowOneMinute, DurationClassCount, &durationClassOf);
        break;
    case gbCameraName:
        byText<&cameraOf>(media);
        break;
    case gbCategory:
        byText<&categoryOf>(media);
        break;
    case gbNone:
        break;
    }
}

INxGroupMedia *NxMediaItemGrouping::makeGroup(const QString &key)
{
    INxGroupMedia *group = INxGroupMedia::createGroup();
    group->setGroupKey(key);
    group->setTitle(NxMediaGroupKey::title(key));
    return group;
}

// Groups that are always there, from the first to the last.
void NxMediaItemGrouping::byClass(const Media &media, int firstFixed, int count, ClassOf classOf)
{
    for (int i = 0; i < count; ++i)
        m_keys.push_back(NxMediaGroupKey::ofFixed(NxMediaGroupKey::Fixed(firstFixed + i)));
    m_groupOf.reserve(size_t(media.size()));
    for (int i = 0; i < media.size(); ++i) {
        nxFetchMediaAhead(media, i);
        m_groupOf.push_back(media.at(i) ? quint32(classOf(media.at(i))) : NoGroup);
    }
    if (m_isDescending)
        reverse();
}

void NxMediaItemGrouping::reverse()
{
    std::reverse(m_keys.begin(), m_keys.end());
    const quint32 last = quint32(m_keys.size()) - 1;
    for (quint32 &group : m_groupOf) {
        if (group != NoGroup)
            group = last - group;
    }
}

void NxMediaItemGrouping::byDay(const Media &media)
{
    OpenGroups<qint64> groups;
    std::vector<size_t> dated;
    std::vector<qint64> moments;
    m_groupOf.reserve(size_t(media.size()));
    for (int i = 0; i < media.size(); ++i) {
        nxFetchMediaAhead(media, i);
        const INxAbstractMedia *one = media.at(i);
        const INxAbstractMediaItem *item = NxMediaItemFacts::itemOf(one);
        const QDateTime created = item ? item->dateCreated() : QDateTime();
        if (created.isValid()) {
            dated.push_back(m_groupOf.size());
            moments.push_back(created.toMSecsSinceEpoch());
        }
        m_groupOf.push_back(!one || created.isValid() ? NoGroup : groups.numberWithoutValue());
    }
    const NxLocalDays days(moments);
    for (size_t i = 0; i < dated.size(); ++i)
        m_groupOf[dated[i]] = groups.numberOf(days.julianDay(moments[i]));
    m_keys = groups.settle(placesOfDays(groups.values(), m_isDescending), m_groupOf);
}

template<QString (*TextOf)(const INxAbstractMedia *)>
void NxMediaItemGrouping::byText(const Media &media)
{
    OpenGroups<QString> groups;
    m_groupOf.reserve(size_t(media.size()));
    for (int i = 0; i < media.size(); ++i) {
        nxFetchMediaAhead(media, i);
        const INxAbstractMedia *one = media.at(i);
        const QString text = TextOf(one);
        if (!one)
            m_groupOf.push_back(NoGroup);
        else
            m_groupOf.push_back(text.isEmpty() ? groups.numberWithoutValue()
                                               : groups.numberOf(text));
    }
    m_keys = groups.settle(NxNaturalOrder::sorted(groups.values(), m_isDescending), m_groupOf);
}
