// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxMediaItemEventObserver.h>

#include <QList>
#include <QPointer>
#include <QString>
#include <QVector>

#include "PlainItemRecords.h"

/// The rows of a media view in the plainest way, for tests to compare the model with: whatever
/// happens, everything is asked anew and compared pair by pair. Nothing is shared with the model
/// or its engines, not even the names of numbers.
class PlainItemModel final : public PlainItemRecords, public INxMediaItemEventObserver
{
public:
    PlainItemModel() = default;
    ~PlainItemModel() override;

    void load(INxFolderMedia *folder);
    void clear();
    void setSortBy(int key, bool descending);
    void setGroupBy(int key, bool descending);
    void setFilter(const Filter &filter);
    void setSortEnable(bool enable) { m_sortEnable = enable; }
    void setItemCountPerLine(int count, bool rescale);
    void expandStateToggle(int row, bool expand);
    void viewMoreSimilarPackItem(bool large);
    void updateSimilarMediaItems();

    [[nodiscard]] INxFolderMedia *folder() const { return m_folder; }
    [[nodiscard]] bool isGrouped() const;
    [[nodiscard]] bool isSortEnable() const { return m_sortEnable; }
    [[nodiscard]] int similarLines() const { return m_similarLines; }
    [[nodiscard]] QVector<Row> rows() const;
    /// What observers of the model were told since the last call.
    [[nodiscard]] QVector<Told> takeTold();

    void onBeforeAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onAfterAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onBeforeRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onBeforeClearItemsEvent(INxFolderMedia *folder) override;
    void onAfterClearItemsEvent(INxFolderMedia *folder) override;
    void onRenameItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onMediaStateChangedEvent(INxAbstractMedia *item) override;
    void onDownloadProgressEvent(INxAbstractMedia *item, int kind, qint64 done,
                                 qint64 total) override;
    void onDownloadFinishedEvent(INxAbstractMedia *item, int kind, bool failed) override;
    void onFetchMoreStateChangedEvent(INxFolderMedia *folder,
                                      INxFolderMedia::FolderFetchMoreState state) override;
    void onAllMediaChangedFinishEvent(INxFolderMedia *folder) override;
    void onVCGDownloadLimit() override;

private:
    using Items = QList<INxAbstractMedia *>;
    struct Group
    {
        QString title;
        Items members;
        bool hasTile = false;
        bool expanded = true;
    };
    struct Line
    {
        int type;
        INxAbstractMedia *media; // Of an item. Not owned.
        int group; // Of a header and of its tile.
    };
    struct OpenChange
    {
        const INxFolderMedia *folder;
        const INxAbstractMedia *item;
    };

    [[nodiscard]] bool concerns(const INxFolderMedia *folder) const;
    [[nodiscard]] bool mayGroup() const;
    [[nodiscard]] bool passes(const INxAbstractMedia *media) const;
    [[nodiscard]] bool passesType(const INxAbstractMedia *media) const;
    [[nodiscard]] Items filtered(const Items &items) const;
    [[nodiscard]] Items ungrouped(const Items &items) const;
    [[nodiscard]] bool showsTiles() const;
    [[nodiscard]] QList<Line> linesOf(int group) const;
    [[nodiscard]] Row headerRow(const Group &group) const;
    [[nodiscard]] QList<int> rowsOf(const INxAbstractMedia *item) const;

    void tell(Signal signal, int number = 0, const void *folder = nullptr,
              const void *media = nullptr);
    void begin();
    void end();
    [[nodiscard]] int openChange(const INxFolderMedia *folder, const INxAbstractMedia *item) const;
    void changed(const INxAbstractMedia *item);
    void empty();
    void rebuild(const Items &items);
    void rebuild();
    void layOutGroups(const Items &items);
    void showSimilar(INxFolderMedia *folder);
    void appendPack(const Items &pack);

    QPointer<INxFolderMedia> m_folder;
    QMetaObject::Connection m_death;
    Filter m_filter;
    int m_sortKey = 0;
    bool m_sortDescending = false;
    int m_groupKey = 0;
    bool m_groupDescending = false;
    bool m_sortEnable = false;
    int m_perLine = 0;
    int m_similarLines = 2;
    QVector<Group> m_groups;
    QList<Line> m_lines;
    Items m_listed; // What the lines were made from.
    bool m_isListed = false; // Not while they show what is similar, or were emptied.
    int m_depth = 0;
    QVector<OpenChange> m_open;
    QVector<Told> m_told;
};
