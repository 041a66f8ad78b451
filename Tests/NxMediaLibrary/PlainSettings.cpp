// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PlainSettings.h"

#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;
using namespace PlainTables;

namespace {

const char *const prefixes[Categories] = {"Media",  "Audio",   "Title",       "Transition",
                                          "Effect", "Element", "SplitScreen", "None",
                                          "None",   "None",    "None"};
const char *const kinds[] = {"View", "SortBy", "SortByOrder", "GroupBy", "GroupByOrder"};

} // namespace

QString PlainTables::prefixOf(int code)
{
    return QLatin1String(prefixes[code]);
}

const char *PlainTables::kindName(int kind)
{
    return kinds[kind];
}

NxMediaCategoryType PlainTables::category(int code)
{
    return static_cast<NxMediaCategoryType>(code);
}

QString PlainTables::keyOf(int code, int kind)
{
    return QLatin1String(prefixes[code]) + QLatin1Char('_') + QLatin1String(kinds[kind]);
}

void PlainTables::set(NxMediaLibrarySetting *setting, int code, int kind, int value)
{
    const auto order = static_cast<NxMediaItemViewSortOrder>(value);
    if (kind == View)
        setting->SetViewType(category(code), static_cast<NxMediaItemViewMode>(value));
    else if (kind == SortBy)
        setting->SetSortBy(category(code), static_cast<NxMediaItemViewSortBy>(value));
    else if (kind == SortByOrder)
        setting->SetSortByOrder(category(code), order);
    else if (kind == GroupBy)
        setting->SetGroupBy(category(code), static_cast<NxMediaItemViewGroupBy>(value));
    else
        setting->SetGroupByOrder(category(code), order);
}

int PlainTables::get(const NxMediaLibrarySetting *setting, int code, int kind)
{
    if (kind == View)
        return setting->GetViewType(category(code));
    if (kind == SortBy)
        return setting->GetSortBy(category(code));
    if (kind == SortByOrder)
        return setting->GetSortByOrder(category(code));
    if (kind == GroupBy)
        return setting->GetGroupBy(category(code));
    return setting->GetGroupByOrder(category(code));
}

QString PlainTables::writtenText(int code, int kind, int value)
{
    static const QMap<int, QString> views{{0, QStringLiteral("ListView")},
                                          {1, QStringLiteral("SmallThumbnailView")},
                                          {2, QStringLiteral("MiddleThumbnailView")}};
    static const QMap<int, QString> sorts{{1, QStringLiteral("sbName")},
                                          {2, QStringLiteral("sbDuration")},
                                          {3, QStringLiteral("sbDateCreated")},
                                          {13, QStringLiteral("sbType")},
                                          {15, QStringLiteral("sbCategory")}};
    static const QMap<int, QString> mediaGroups{{1, QStringLiteral("gbType")},
                                                {2, QStringLiteral("gbDateCreated")},
                                                {3, QStringLiteral("gbDuration")},
                                                {4, QStringLiteral("gbName")}};
    static const QMap<int, QString> otherGroups{{5, QStringLiteral("gbCategory")}};
    static const QMap<int, QString> orders{{0, QStringLiteral("soASC")},
                                           {1, QStringLiteral("soDESC")}};
    if (kind == View)
        return views.value(value, QStringLiteral("vmLargeThumbnail"));
    if (kind == SortBy)
        return sorts.value(value);
    if (kind == GroupBy)
        return (code == 0 ? mediaGroups : otherGroups).value(value, QStringLiteral("gbNone"));
    return orders.value(value);
}

int PlainTables::readValue(int code, int kind, const QString &text)
{
    static const QMap<QString, int> views{{QStringLiteral("ListView"), 0},
                                          {QStringLiteral("SmallThumbnailView"), 1},
                                          {QStringLiteral("MiddleThumbnailView"), 2}};
    static const QMap<QString, int> sorts{{QStringLiteral("sbDuration"), 2},
                                          {QStringLiteral("sbDateCreated"), 3},
                                          {QStringLiteral("sbType"), 13},
                                          {QStringLiteral("sbLastModify"), 14},
                                          {QStringLiteral("sbCategory"), 15}};
    static const QMap<QString, int> mediaGroups{{QStringLiteral("gbType"), 1},
                                                {QStringLiteral("gbDateCreated"), 2},
                                                {QStringLiteral("gbDuration"), 3},
                                                {QStringLiteral("gbName"), 4}};
    static const QMap<QString, int> otherGroups{{QStringLiteral("gbCategory"), 5}};
    if (kind == View)
        return views.value(text, 3);
    if (kind == SortBy && text.isEmpty())
        return code == 0 ? 1 : 14;
    if (kind == SortBy)
        return sorts.value(text, 1);
    if (kind == GroupBy)
        return (code == 0 ? mediaGroups : otherGroups).value(text, 0);
    return 0;
}

PlainSettings::PlainSettings(const QMap<QString, QString> &file) : m_file(file)
{
    start();
}

void PlainSettings::start()
{
    for (int code = 0; code < Categories; ++code) {
        m_now.filters[code] = 0;
        for (int kind = 0; kind < KindCount; ++kind)
            m_now.values[code][kind] = readValue(code, kind, m_file.value(keyOf(code, kind)));
    }
    m_saved.clear();
}

void PlainSettings::set(int code, int kind, int value)
{
    if (m_now.values[code][kind] == value)
        return;
    put(code, kind, value);
    if (kind != View || value < 1 || value > 3)
        return;
    for (int other = 0; other < Categories; ++other) {
        if (m_now.values[other][View] != value)
            put(other, View, value);
    }
}

void PlainSettings::setFilter(int code, int value)
{
    m_now.filters[code] = value;
}

void PlainSettings::save()
{
    m_saved.append(m_now);
}

void PlainSettings::restore()
{
    if (m_saved.isEmpty())
        return;
    const State back = m_saved.takeLast();
    for (int code = 0; code < Categories; ++code)
        m_now.filters[code] = back.filters[code];
    for (int kind = 0; kind < KindCount; ++kind) {
        for (int code = 0; code < Categories; ++code)
            set(code, kind, back.values[code][kind]);
    }
}

QString PlainSettings::differenceTo(const NxMediaLibrarySetting *setting) const
{
    for (int code = 0; code < Categories; ++code) {
        if (setting->GetFilterType(category(code)) != m_now.filters[code])
            return QStringLiteral("filter of %1").arg(code);
        for (int kind = 0; kind < KindCount; ++kind) {
            const int real = PlainTables::get(setting, code, kind);
            if (real != m_now.values[code][kind])
                return QStringLiteral("%1 is %2, not %3")
                    .arg(keyOf(code, kind))
                    .arg(real)
                    .arg(m_now.values[code][kind]);
        }
    }
    return QString();
}

void PlainSettings::put(int code, int kind, int value)
{
    m_now.values[code][kind] = value;
    const QString text = writtenText(code, kind, value);
    if (!text.isEmpty())
        m_file.insert(keyOf(code, kind), text);
}
