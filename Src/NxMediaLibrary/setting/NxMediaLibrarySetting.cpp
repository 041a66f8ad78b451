// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>

#include "NxMatterMenuFile_p.h"

#include <NxCore/NxConfig.h>

#include <QHash>
#include <QStandardPaths>

#include <algorithm>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

const auto viewKind = QStringLiteral("View");
const auto sortByKind = QStringLiteral("SortBy");
const auto sortByOrderKind = QStringLiteral("SortByOrder");
const auto groupByKind = QStringLiteral("GroupBy");
const auto groupByOrderKind = QStringLiteral("GroupByOrder");

struct TextOfValue
{
    int value;
    QString text;
};
using TextTable = QVector<TextOfValue>;

const TextTable &viewTexts()
{
    static const TextTable texts{
        {vmList, QStringLiteral("ListView")},
        {vmSmallThumbnail, QStringLiteral("SmallThumbnailView")},
        {vmMiddleThumbnail, QStringLiteral("MiddleThumbnailView")},
        {vmLargeThumbnail, QStringLiteral("vmLargeThumbnail")},
    };
    return texts;
}

const TextTable &writtenSortTexts()
{
    static const TextTable texts{
        {sbName, QStringLiteral("sbName")},
        {sbDuration, QStringLiteral("sbDuration")},
        {sbDateCreated, QStringLiteral("sbDateCreated")},
        {sbType, QStringLiteral("sbType")},
        {sbCategory, QStringLiteral("sbCategory")},
    };
    return texts;
}

/// Sorting by last modification is understood, but never written.
const TextTable &readSortTexts()
{
    static const TextTable texts =
        writtenSortTexts() + TextTable{{sbNew, QStringLiteral("sbLastModify")}};
    return texts;
}

const TextTable &orderTexts()
{
    static const TextTable texts{
        {soASC, QStringLiteral("soASC")},
        {soDESC, QStringLiteral("soDESC")},
    };
    return texts;
}

/// The groupings that a category offers, beside none at all.
const TextTable &groupTexts(NxMediaCategoryType category)
{
    static const TextTable ofMedia{
        {gbType, QStringLiteral("gbType")},
        {gbDateCreated, QStringLiteral("gbDateCreated")},
        {gbDuration, QStringLiteral("gbDuration")},
        {gbCameraName, QStringLiteral("gbName")},
    };
    static const TextTable ofResources{{gbCategory, QStringLiteral("gbCategory")}};
    return category == mctMedia ? ofMedia : ofResources;
}

QString textOf(const TextTable &table, int value, const QString &unknown = QString())
{
    const auto found = std::find_if(table.begin(), table.end(),
                                    [value](const TextOfValue &row) { return row.value == value; });
    return found == table.end() ? unknown : found->text;
}

template<typename Value>
Value valueOf(const TextTable &table, const QString &text, Value unknown)
{
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&text](const TextOfValue &row) { return row.text == text; });
    return found == table.end() ? unknown : static_cast<Value>(found->value);
}

/// Negative codes are no categories either.
bool isCategory(NxMediaCategoryType category)
{
    return category >= 0 && category < MediaCategoryCount;
}

NxMediaCategoryType categoryAt(int code)
{
    return static_cast<NxMediaCategoryType>(code);
}

bool isThumbnail(NxMediaItemViewMode mode)
{
    return mode == vmSmallThumbnail || mode == vmMiddleThumbnail || mode == vmLargeThumbnail;
}

MatterViewMenuState snapshotOf(const QList<MatterMenu> &menus)
{
    MatterViewMenuState state;
    for (int i = 0; i < MediaCategoryCount; ++i) {
        const MatterMenu &menu = menus.at(i);
        state.filterTypes[i] = menu.filterType;
        state.viewTypes[i] = menu.viewType;
        state.sortBys[i] = menu.sortBy;
        state.sortByOrders[i] = menu.sortByOrder;
        state.groupBys[i] = menu.groupBy;
        state.groupByOrders[i] = menu.groupByOrder;
    }
    return state;
}

/// Hands each category's value to a setter, in the order of the categories.
template<typename Value>
void apply(NxMediaLibrarySetting *setting, const MatterViewMenuState::Values &values,
           void (NxMediaLibrarySetting::*set)(NxMediaCategoryType, Value))
{
    for (int i = 0; i < MediaCategoryCount; ++i)
        (setting->*set)(categoryAt(i), static_cast<Value>(values[i]));
}

} // namespace

NxMediaLibrarySetting::NxMediaLibrarySetting() : m_file(std::make_unique<NxMatterMenuFile>())
{
    Init();
}

NxMediaLibrarySetting::~NxMediaLibrarySetting() = default;

QStringList NxMediaLibrarySetting::allKeys()
{
    QStringList keys;
    for (int i = 0; i < MediaCategoryCount; ++i) {
        for (const QString &kind :
             {viewKind, sortByKind, sortByOrderKind, groupByKind, groupByOrderKind})
            keys.append(keyOf(categoryAt(i), kind));
    }
    return keys;
}

QString NxMediaLibrarySetting::keyOf(NxMediaCategoryType category, const QString &kind)
{
    return GetMatterTypeString(category) + QLatin1Char('_') + kind;
}

void NxMediaLibrarySetting::Init()
{
    m_menus.clear();
    const QHash<QString, QString> texts = m_file->texts(allKeys());
    for (int i = 0; i < MediaCategoryCount; ++i) {
        const NxMediaCategoryType category = categoryAt(i);
        const auto text = [&](const QString &kind) { return texts.value(keyOf(category, kind)); };
        const QString sortText = text(sortByKind);
        MatterMenu menu;
        menu.viewType = GetViewTypeFromString(text(viewKind));
        menu.sortBy = sortText.isEmpty() ? GetDefaultSortByFromString(category)
                                         : GetSortByFromString(sortText);
        menu.sortByOrder = GetSortOrderFromString(text(sortByOrderKind));
        menu.groupBy = GetGroupByFromString(text(groupByKind), category);
        menu.groupByOrder = GetSortOrderFromString(text(groupByOrderKind));
        m_menus.append(menu);
    }
}

template<typename Value>
Value NxMediaLibrarySetting::stored(NxMediaCategoryType category, Value MatterMenu::*field,
                                    Value unknown) const
{
    return isCategory(category) ? m_menus.at(category).*field : unknown;
}

template<typename Value>
bool NxMediaLibrarySetting::change(NxMediaCategoryType category, Value MatterMenu::*field,
                                   Value value, const QString &kind)
{
    if (!isCategory(category) || m_menus.at(category).*field == value)
        return false;
    m_menus[category].*field = value;
    SaveToConfigFile(category, kind, value);
    return true;
}

NxMediaItemViewMode NxMediaLibrarySetting::GetViewType(NxMediaCategoryType category) const
{
    return stored(category, &MatterMenu::viewType, vmLargeThumbnail);
}

NxMediaItemViewSortBy NxMediaLibrarySetting::GetSortBy(NxMediaCategoryType category) const
{
    return stored(category, &MatterMenu::sortBy);
}

NxMediaItemViewSortOrder NxMediaLibrarySetting::GetSortByOrder(NxMediaCategoryType category) const
{
    return stored(category, &MatterMenu::sortByOrder);
}

NxMediaItemViewGroupBy NxMediaLibrarySetting::GetGroupBy(NxMediaCategoryType category) const
{
    return stored(category, &MatterMenu::groupBy);
}

NxMediaItemViewSortOrder NxMediaLibrarySetting::GetGroupByOrder(NxMediaCategoryType category) const
{
    return stored(category, &MatterMenu::groupByOrder);
}

NxMediaTypeFilter NxMediaLibrarySetting::GetFilterType(NxMediaCategoryType category) const
{
    return stored(category, &MatterMenu::filterType);
}

void NxMediaLibrarySetting::GetMatterMenu(NxMediaCategoryType category, MatterMenu &menu) const
{
    menu.viewType = GetViewType(category);
    menu.sortBy = GetSortBy(category);
    menu.sortByOrder = GetSortByOrder(category);
    menu.groupBy = GetGroupBy(category);
    menu.groupByOrder = GetGroupByOrder(category);
}

void NxMediaLibrarySetting::SetViewType(NxMediaCategoryType category, NxMediaItemViewMode mode)
{
    const NxMatterMenuFile::Batch batch(m_file.get());
    if (change(category, &MatterMenu::viewType, mode, viewKind) && isThumbnail(mode))
        ChangeOtherMatterThumbnailView(category, mode);
}

void NxMediaLibrarySetting::SetSortBy(NxMediaCategoryType category, NxMediaItemViewSortBy sortBy)
{
    change(category, &MatterMenu::sortBy, sortBy, sortByKind);
}

void NxMediaLibrarySetting::SetSortByOrder(NxMediaCategoryType category,
                                           NxMediaItemViewSortOrder order)
{
    change(category, &MatterMenu::sortByOrder, order, sortByOrderKind);
}

void NxMediaLibrarySetting::SetGroupBy(NxMediaCategoryType category, NxMediaItemViewGroupBy groupBy)
{
    change(category, &MatterMenu::groupBy, groupBy, groupByKind);
}

void NxMediaLibrarySetting::SetGroupByOrder(NxMediaCategoryType category,
                                            NxMediaItemViewSortOrder order)
{
    change(category, &MatterMenu::groupByOrder, order, groupByOrderKind);
}

void NxMediaLibrarySetting::SetFilterType(NxMediaCategoryType category, NxMediaTypeFilter filter)
{
    if (isCategory(category))
        m_menus[category].filterType = filter;
}

void NxMediaLibrarySetting::SetMatterMenu(NxMediaCategoryType category, const MatterMenu &menu)
{
    const NxMatterMenuFile::Batch batch(m_file.get());
    SetViewType(category, menu.viewType);
    SetSortBy(category, menu.sortBy);
    SetSortByOrder(category, menu.sortByOrder);
    SetGroupBy(category, menu.groupBy);
    SetGroupByOrder(category, menu.groupByOrder);
}

void NxMediaLibrarySetting::Save()
{
    m_saved.append(snapshotOf(m_menus));
}

void NxMediaLibrarySetting::Restore()
{
    if (m_saved.isEmpty())
        return;
    const NxMatterMenuFile::Batch batch(m_file.get());
    const MatterViewMenuState state = m_saved.takeLast();
    apply(this, state.filterTypes, &NxMediaLibrarySetting::SetFilterType);
    apply(this, state.viewTypes, &NxMediaLibrarySetting::SetViewType);
    apply(this, state.sortBys, &NxMediaLibrarySetting::SetSortBy);
    apply(this, state.sortByOrders, &NxMediaLibrarySetting::SetSortByOrder);
    apply(this, state.groupBys, &NxMediaLibrarySetting::SetGroupBy);
    apply(this, state.groupByOrders, &NxMediaLibrarySetting::SetGroupByOrder);
}

QString NxMediaLibrarySetting::GetImportDefaultDir()
{
    const QStringList desktops = QStandardPaths::standardLocations(QStandardPaths::DesktopLocation);
    const QString fallback = desktops.isEmpty()
                                 ? QStringLiteral("C:\\Users\\Public\\Music\\Sample Music")
                                 : desktops.first();
    return NxConfig::Instance()->getDefaultImportDir(fallback);
}

void NxMediaLibrarySetting::SetImportDefaultDir(const QString &directory)
{
    NxConfig::Instance()->setDefaultImportDir(directory);
}

QString NxMediaLibrarySetting::GetMatterTypeString(NxMediaCategoryType category)
{
    static const QHash<int, QString> prefixes{
        {mctMedia, QStringLiteral("Media")},
        {mctAudio, QStringLiteral("Audio")},
        {mctTitle, QStringLiteral("Title")},
        {mctTransition, QStringLiteral("Transition")},
        {mctEffect, QStringLiteral("Effect")},
        {mctElement, QStringLiteral("Element")},
        {mctSplitScreen, QStringLiteral("SplitScreen")},
    };
    return prefixes.value(category, QStringLiteral("None"));
}

NxMediaItemViewMode NxMediaLibrarySetting::GetViewTypeFromString(const QString &text)
{
    return valueOf(viewTexts(), text, vmLargeThumbnail);
}

NxMediaItemViewSortBy NxMediaLibrarySetting::GetSortByFromString(const QString &text)
{
    return valueOf(readSortTexts(), text, sbName);
}

NxMediaItemViewSortOrder NxMediaLibrarySetting::GetSortOrderFromString(const QString &)
{
    return soASC;
}

NxMediaItemViewGroupBy NxMediaLibrarySetting::GetGroupByFromString(const QString &text,
                                                                   NxMediaCategoryType category)
{
    return valueOf(groupTexts(category), text, gbNone);
}

NxMediaItemViewSortBy NxMediaLibrarySetting::GetDefaultSortByFromString(
    NxMediaCategoryType category)
{
    return category == mctMedia ? sbName : sbNew;
}

void NxMediaLibrarySetting::SaveToConfigFile(NxMediaCategoryType category, const QString &kind,
                                             int value)
{
    using SaveFunction = void (NxMediaLibrarySetting::*)(NxMediaCategoryType, int);
    static const QHash<QString, SaveFunction> functions{
        {viewKind, &NxMediaLibrarySetting::SaveViewTypeToConfigFile},
        {sortByKind, &NxMediaLibrarySetting::SaveSortByToConfigFile},
        {sortByOrderKind, &NxMediaLibrarySetting::SaveSortByOrderToConfigFile},
        {groupByKind, &NxMediaLibrarySetting::SaveGroupByToConfigFile},
        {groupByOrderKind, &NxMediaLibrarySetting::SaveGroupByOrderToConfigFile},
    };
    if (const SaveFunction save = functions.value(kind, nullptr))
        (this->*save)(category, value);
}

void NxMediaLibrarySetting::SaveViewTypeToConfigFile(NxMediaCategoryType category, int value)
{
    static const QString large = textOf(viewTexts(), vmLargeThumbnail);
    saveText(category, viewKind, textOf(viewTexts(), value, large));
}

void NxMediaLibrarySetting::SaveSortByToConfigFile(NxMediaCategoryType category, int value)
{
    saveText(category, sortByKind, textOf(writtenSortTexts(), value));
}

void NxMediaLibrarySetting::SaveSortByOrderToConfigFile(NxMediaCategoryType category, int value)
{
    saveText(category, sortByOrderKind, textOf(orderTexts(), value));
}

void NxMediaLibrarySetting::SaveGroupByToConfigFile(NxMediaCategoryType category, int value)
{
    saveText(category, groupByKind, textOf(groupTexts(category), value, QStringLiteral("gbNone")));
}

void NxMediaLibrarySetting::SaveGroupByOrderToConfigFile(NxMediaCategoryType category, int value)
{
    saveText(category, groupByOrderKind, textOf(orderTexts(), value));
}

/// A value without a text leaves the key as it is.
void NxMediaLibrarySetting::saveText(NxMediaCategoryType category, const QString &kind,
                                     const QString &text)
{
    if (!text.isEmpty())
        m_file->write(keyOf(category, kind), text);
}

void NxMediaLibrarySetting::ChangeOtherMatterThumbnailView(NxMediaCategoryType category,
                                                           NxMediaItemViewMode mode)
{
    for (int i = 0; i < MediaCategoryCount; ++i) {
        if (i != category)
            change(categoryAt(i), &MatterMenu::viewType, mode, viewKind);
    }
}
