// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxVBLModel/INxFolderMedia.h>

#include <QCoreApplication>
#include <QList>
#include <QPointer>
#include <QVector>

#include <memory>
#include <vector>

class INxExtraMedia;
class INxGroupMedia;
class INxMediaItemFilter;
class NxMediaItemArrangement;
struct NxMediaItemPlace;

/// The rows of one media view: the media of a folder, filtered, sorted and grouped, with group
/// headers and tiles among them.
///
/// Owns its filters, group headers and tiles; media belong to the model library. A folder that
/// dies counts as none: rows are then neither counted nor answered. GUI thread only; no call
/// touches a disk.
///
/// Rows are always those of working everything out anew. Where every change to media is told (see
/// setChangesTold()) what was worked out is kept, so that one media more or less, or another
/// filter, costs little however many there are; derived records always have it worked out anew.
class NXMEDIALIBRARY_EXPORT NMediaItemData
{
    Q_DECLARE_TR_FUNCTIONS(NxMediaItemModel)
public:
    using Items = QList<INxAbstractMedia *>;

    explicit NMediaItemData(NXVBLMODEL::NxMediaCategoryType categoryType);
    /// A copy has filters of its own, and shows the headers and tiles of the original without
    /// owning them: they die with the original or at its next change.
    NMediaItemData(const NMediaItemData &other);
    NMediaItemData &operator=(const NMediaItemData &other);

    /// Stores the grouping and shows the folder anew.
    virtual void setGroupBy(const NXMEDIALIBRARY::NxMediaItemViewGroup &group);
    [[nodiscard]] virtual NXMEDIALIBRARY::NxMediaItemViewGroup getGroupBy() const;
    /// Stores the filter and begins with few lines of a similar search. Rows are made anew, but a
    /// similar search has rows only when it follows another one with another resource.
    virtual void setFilter(const NXMEDIALIBRARY::NxMediaItemViewFilter &filter);
    virtual ~NMediaItemData();
    /// Replaces `groups` by the groups of the items; the caller owns them.
    virtual void doGroupBy(Items &items, INxFolderMedia *folder, Items &groups);
    /// Makes the groups of the folder's media anew.
    virtual void doGroupBy();
    /// For derived records: called when groups were made. Does nothing.
    virtual void sortGroupItems();
    /// Puts the "Import Media" tiles into rows that were just made.
    virtual void doExtraMedia();
    /// The items that pass the filters, sorted; without a folder the items as they are.
    [[nodiscard]] virtual Items getVisibleItems(const Items &items);
    /// Each group with something to show, followed by that; what a group shows becomes its list of
    /// members.
    [[nodiscard]] virtual Items getVisibleItemsFromGroup();

    /// Shows a folder, or none.
    void load(const INxFolderMedia *folder);
    /// Makes all rows anew.
    void updateMediaItems();
    /// Makes the rows of a similar search: each pack of likes up to as many lines as are shown, and
    /// a "View More" tile behind it when there are more. Never sorted.
    void reLoadMediaInSimilarSearch(INxFolderMedia *folder);
    /// No rows, groups or tiles; the folder stays.
    void clear();

    [[nodiscard]] INxFolderMedia *folder() const;
    [[nodiscard]] const Items &getItems() const;
    /// Null for a row that is not there.
    [[nodiscard]] INxAbstractMedia *mediaItem(int row) const;
    /// Where a media stands, ascending; more than once when its group was expanded twice.
    [[nodiscard]] QList<int> rows(const INxAbstractMedia *item) const;

    /// The rows that take a whole line of a view, ascending: headers of groups and "View More"
    /// tiles. Costs as much as there are groups while they stand as they were made.
    [[nodiscard]] QVector<int> wholeLineRows() const;
    /// How many media are shown, those of folded groups among them; no headers and tiles.
    [[nodiscard]] int listedCount() const;

    /// Whether the folder, and what is searched in it, allows grouping.
    [[nodiscard]] bool isCanGroupBy() const;
    /// Whether rows of a folder, which may be null, would be grouped by a key. Lists nothing.
    [[nodiscard]] static bool canGroup(const INxFolderMedia *folder,
                                       const NXMEDIALIBRARY::NxMediaItemViewFilter &filter);
    /// Whether rows are grouped.
    [[nodiscard]] bool isGrouped() const;

    void setSortBy(const NXMEDIALIBRARY::NxMediaItemViewSort &sort);
    [[nodiscard]] NXMEDIALIBRARY::NxMediaItemViewSort getSortBy() const;
    [[nodiscard]] const NXMEDIALIBRARY::NxMediaItemViewFilter &getFilter() const;
    /// Takes effect with the next rows. While off, rows stand as the folder lists them.
    void setSortEnable(bool enable);
    [[nodiscard]] bool isSortEnable() const;
    void setKeepFolder(bool keep);
    [[nodiscard]] bool isKeepFolder() const;
    /// Items in a line of the view; 0 when unknown. With `rescale` the lines of a similar search
    /// become as many as hold what is shown; a count of 0 rescales nothing.
    void setItemCountPerLine(int count, bool rescale);
    [[nodiscard]] int itemCountPerLine() const;
    /// Lines of each pack that a similar search shows.
    [[nodiscard]] int similarLines() const;
    void addSimilarLines(int lines);

    /// Promises that append(), remove(), mediaChanged() and listingChanged() tell of every change
    /// to the media of the folder. Not promised in the beginning: nothing is then kept.
    void setChangesTold(bool told);
    /// Folds or unfolds the group whose header stands in the row; nothing for other rows. Unfolding
    /// twice shows the members twice.
    void expandStateToggle(int row, bool expand);
    /// The rows with one media more, which the folder need not list yet.
    void append(INxAbstractMedia *item, INxFolderMedia *folder);
    /// Tells that the folder lists a media that was appended. Rows that were made in between are
    /// made once more, as they lack it.
    void appended(INxAbstractMedia *item);
    /// True when the folder's media were arranged without this one.
    [[nodiscard]] bool lacks(const INxAbstractMedia *item) const;
    /// Takes a media out of rows, groups and tiles; it is not looked at and may be dead.
    void remove(INxAbstractMedia *item);
    /// Tells that a fact of the media changed: its row stays, until rows are made or one is added.
    void mediaChanged(INxAbstractMedia *item);
    /// Tells that the folder lists its media in another order.
    void listingChanged();
    /// Gives back the memory that only makes changes fast. Rows stay.
    void releaseCaches();

    /// Headers and tiles in the user's language of now.
    void updateGroupByText();
    void updateExtraText();

    /// Rows that a presenter wants to find again after a reload.
    void saveRelocateIndex(int row);
    void removeAllRelocateIndex();
    [[nodiscard]] const QList<int> &getRelocateIndexs() const;

protected:
    /// What passes all filters.
    [[nodiscard]] Items doFilter(const Items &items) const;
    [[nodiscard]] INxExtraMedia *createExtraMedia(NXVBLMODEL::NxMediaType type,
                                                  const QString &title) const;
    void releaseExtraItems();
    void releaseGroupItems();

private:
    void createFilter();
    void copySettings(const NMediaItemData &other);
    [[nodiscard]] Items listing() const;
    void layOut(Items items);
    void regroup(Items &items);
    [[nodiscard]] NXMEDIALIBRARY::NxMediaItemViewSort effectiveSort() const;
    [[nodiscard]] NXMEDIALIBRARY::NxMediaItemViewSort usedSort() const;
    [[nodiscard]] bool showsTiles() const;
    INxExtraMedia *addTile(NXVBLMODEL::NxMediaType type);
    [[nodiscard]] static QString titleOf(NXVBLMODEL::NxMediaType tile);
    [[nodiscard]] Items narrowGroupsByMembers();
    void appendPack(const Items &pack);

    [[nodiscard]] int headRows() const;
    [[nodiscard]] int rowsBefore(int section) const;
    [[nodiscard]] INxGroupMedia *groupOf(int section) const;
    [[nodiscard]] bool canChangeInPlace() const;
    [[nodiscard]] bool appendInPlace(INxAbstractMedia *item);
    [[nodiscard]] bool settle();
    [[nodiscard]] bool findLast(quint32 *number);
    [[nodiscard]] bool findChanged(std::vector<quint32> *numbers) const;
    void show(quint32 number);
    void insertHead(int section, int row);
    void hide(const NxMediaItemPlace &place);
    void removeShown(int row);
    void removeEverywhere(INxAbstractMedia *item);

    QPointer<INxFolderMedia> m_folder;
    Items m_rows;
    Items m_groupItems;
    Items m_extraItems;
    NXMEDIALIBRARY::NxMediaItemViewGroup m_groupBy;
    NXMEDIALIBRARY::NxMediaItemViewSort m_sortBy;
    NXMEDIALIBRARY::NxMediaItemViewFilter m_filter;
    bool m_keepFolder = false;
    bool m_sortEnable = false;
    int m_itemCountPerLine = 0;
    int m_similarLines;
    std::vector<std::unique_ptr<INxMediaItemFilter>> m_filters;
    NXVBLMODEL::NxMediaCategoryType m_categoryType;
    QList<int> m_relocateIndexes;

    bool m_ownsGroups = true;
    bool m_ownsExtras = true;
    bool m_areChangesTold = false;
    std::unique_ptr<NxMediaItemArrangement> m_arrangement;
    Items m_arrangedGroups; // The groups of its sections.
    bool m_isArranged = false; // What is visible was asked of it.
    bool m_rowsFollow = false; // The rows stand as it tells, expanded, behind tiles if there are.
    bool m_hasTiles = false;
};
