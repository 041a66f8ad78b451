// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxMediaLibrary/setting/MatterMenu.h>
#include <NxMediaLibrary/setting/MatterViewMenuState.h>

#include <NxCore/NxLazySingleton.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class NxMatterMenuFile;

/// How each category of the panel was last shown, so that it opens again as the user left it.
///
/// View mode, sorting and grouping are read from the user's "Brevano.ini" when the object is made
/// and written at every change; the type filter lasts only as long as the program. The file is
/// not read again: what another running program chooses is not seen.
///
/// Three things do not come back as they were set: an order (it is written, and every start begins
/// ascending), sorting by last modification (it is not written; the key keeps its older text), and
/// groupings that a category does not offer. Categories 7 to 10 share their place in the file.
///
/// Categories other than 0 to 10 are ignored by setters; getters answer defaults for them. A file
/// that is missing, damaged, unreadable or unwritable never stops anything: what cannot be read is
/// at its default, what cannot be written lasts until the program ends. GUI thread only.
class NXMEDIALIBRARY_EXPORT NxMediaLibrarySetting : public NxLazySingleton<NxMediaLibrarySetting>
{
public:
    using NxMediaCategoryType = NXVBLMODEL::NxMediaCategoryType;
    using NxMediaItemViewMode = NXMEDIALIBRARY::NxMediaItemViewMode;
    using NxMediaItemViewSortBy = NXMEDIALIBRARY::NxMediaItemViewSortBy;
    using NxMediaItemViewSortOrder = NXMEDIALIBRARY::NxMediaItemViewSortOrder;
    using NxMediaItemViewGroupBy = NXMEDIALIBRARY::NxMediaItemViewGroupBy;
    using NxMediaTypeFilter = NXMEDIALIBRARY::NxMediaTypeFilter;

    ~NxMediaLibrarySetting() override;

    /// Large thumbnails for an unknown category.
    [[nodiscard]] NxMediaItemViewMode GetViewType(NxMediaCategoryType category) const;
    /// These answer the value 0 for an unknown category.
    [[nodiscard]] NxMediaItemViewSortBy GetSortBy(NxMediaCategoryType category) const;
    [[nodiscard]] NxMediaItemViewSortOrder GetSortByOrder(NxMediaCategoryType category) const;
    [[nodiscard]] NxMediaItemViewGroupBy GetGroupBy(NxMediaCategoryType category) const;
    [[nodiscard]] NxMediaItemViewSortOrder GetGroupByOrder(NxMediaCategoryType category) const;
    [[nodiscard]] NxMediaTypeFilter GetFilterType(NxMediaCategoryType category) const;
    /// Fills in what the five getters above the filter's answer; the record's filter stays.
    void GetMatterMenu(NxMediaCategoryType category, MatterMenu &menu) const;

    /// A thumbnail size becomes the size of every category, also of those shown as a list; the
    /// list is chosen for one category alone. This and the next four write the file, unless the
    /// value is the stored one.
    void SetViewType(NxMediaCategoryType category, NxMediaItemViewMode mode);
    void SetSortBy(NxMediaCategoryType category, NxMediaItemViewSortBy sortBy);
    void SetSortByOrder(NxMediaCategoryType category, NxMediaItemViewSortOrder order);
    void SetGroupBy(NxMediaCategoryType category, NxMediaItemViewGroupBy groupBy);
    void SetGroupByOrder(NxMediaCategoryType category, NxMediaItemViewSortOrder order);
    /// Never written to the file.
    void SetFilterType(NxMediaCategoryType category, NxMediaTypeFilter filter);
    /// The five written fields, by the setters above in their order; the record's filter is not
    /// looked at.
    void SetMatterMenu(NxMediaCategoryType category, const MatterMenu &menu);

    /// Remembers all categories as they are now, until Restore(). Calls may be nested.
    void Save();
    /// Goes back to the latest Save(), filters included, and forgets it; nothing without one.
    /// Works through the setters in the order of the categories: of thumbnail sizes that differ
    /// from the present one, the last becomes the size of all.
    void Restore();

    /// The folder that a first import starts in: the one last set, else the user's desktop.
    [[nodiscard]] static QString GetImportDefaultDir();
    static void SetImportDefaultDir(const QString &directory);

protected:
    NxMediaLibrarySetting();

    /// Reads all categories from the file.
    void Init();

    /// What a category's keys in the file begin with.
    [[nodiscard]] static QString GetMatterTypeString(NxMediaCategoryType category);
    /// The values of the file's texts; unknown texts have the default value.
    [[nodiscard]] static NxMediaItemViewMode GetViewTypeFromString(const QString &text);
    [[nodiscard]] static NxMediaItemViewSortBy GetSortByFromString(const QString &text);
    /// Ascending, whatever the text says.
    [[nodiscard]] static NxMediaItemViewSortOrder GetSortOrderFromString(const QString &text);
    [[nodiscard]] static NxMediaItemViewGroupBy GetGroupByFromString(const QString &text,
                                                                     NxMediaCategoryType category);
    /// What a category without a stored sort key is sorted by.
    [[nodiscard]] static NxMediaItemViewSortBy GetDefaultSortByFromString(
        NxMediaCategoryType category);

    /// Writes one value; `kind` is "View", "SortBy", "SortByOrder", "GroupBy" or "GroupByOrder",
    /// any other writes nothing.
    void SaveToConfigFile(NxMediaCategoryType category, const QString &kind, int value);
    void SaveViewTypeToConfigFile(NxMediaCategoryType category, int value);
    void SaveSortByToConfigFile(NxMediaCategoryType category, int value);
    void SaveSortByOrderToConfigFile(NxMediaCategoryType category, int value);
    void SaveGroupByToConfigFile(NxMediaCategoryType category, int value);
    void SaveGroupByOrderToConfigFile(NxMediaCategoryType category, int value);

    /// Gives every category but this one the mode, and writes those that had another.
    void ChangeOtherMatterThumbnailView(NxMediaCategoryType category, NxMediaItemViewMode mode);

private:
    friend class NxLazySingleton<NxMediaLibrarySetting>;

    [[nodiscard]] static QStringList allKeys();
    [[nodiscard]] static QString keyOf(NxMediaCategoryType category, const QString &kind);

    template<typename Value>
    [[nodiscard]] Value stored(NxMediaCategoryType category, Value MatterMenu::*field,
                               Value unknown = {}) const;
    template<typename Value>
    bool change(NxMediaCategoryType category, Value MatterMenu::*field, Value value,
                const QString &kind);
    void saveText(NxMediaCategoryType category, const QString &kind, const QString &text);

    const std::unique_ptr<NxMatterMenuFile> m_file;
    QList<MatterMenu> m_menus; // One for each category, by its code.
    QVector<MatterViewMenuState> m_saved; // The latest one last.
};
