// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PlainItemModel.h"

#include <algorithm>
#include <utility>

namespace {

bool isContent(int downloadKind)
{
    return downloadKind >= 2 && downloadKind <= 6;
}

} // namespace

PlainItemModel::Row PlainItemModel::headerRow(const Group &group) const
{
    Row row;
    row.type = HeaderRow;
    row.title = group.title;
    row.count = group.members.size();
    row.expanded = group.expanded;
    if (group.hasTile)
        row.members.append(nullptr);
    for (const INxAbstractMedia *member : group.members)
        row.members.append(member);
    return row;
}

QVector<PlainItemModel::Row> PlainItemModel::rows() const
{
    QVector<Row> rows;
    if (!m_folder)
        return rows;
    for (const Line &line : m_lines) {
        Row row;
        row.type = line.type;
        row.media = line.media;
        if (line.type == HeaderRow)
            row = headerRow(m_groups.at(line.group));
        if (line.type == ImportTileRow && line.group >= 0) {
            const auto header =
                std::find_if(m_lines.begin(), m_lines.end(), [&line](const Line &one) {
                    return one.type == HeaderRow && one.group == line.group;
                });
            row.owner = int(header - m_lines.begin());
        }
        rows.append(row);
    }
    return rows;
}

QList<int> PlainItemModel::rowsOf(const INxAbstractMedia *item) const
{
    QList<int> rows;
    for (int row = 0; m_folder && row < m_lines.size(); ++row) {
        if (m_lines.at(row).type == ItemRow && m_lines.at(row).media == item)
            rows.append(row);
    }
    return rows;
}

QVector<PlainItemModel::Told> PlainItemModel::takeTold()
{
    return std::exchange(m_told, {});
}

void PlainItemModel::tell(Signal signal, int number, const void *folder, const void *media)
{
    m_told.append({signal, number, folder, media});
}

void PlainItemModel::begin()
{
    if (m_depth++ == 0)
        tell(AboutToReset);
}

void PlainItemModel::end()
{
    if (--m_depth == 0)
        tell(Reset, m_folder ? m_lines.size() : 0);
}

int PlainItemModel::openChange(const INxFolderMedia *folder, const INxAbstractMedia *item) const
{
    const auto open = std::find_if(m_open.begin(), m_open.end(), [&](const OpenChange &change) {
        return change.folder == folder && change.item == item;
    });
    return open == m_open.end() ? -1 : int(open - m_open.begin());
}

void PlainItemModel::changed(const INxAbstractMedia *item)
{
    if (!item)
        return;
    for (const int row : rowsOf(item))
        tell(DataChanged, row, nullptr, item);
}

void PlainItemModel::onBeforeAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    if (!concerns(folder) || openChange(folder, item) >= 0)
        return;
    m_open.append({folder, item});
    begin();
    Items items = m_folder ? m_folder->items(true, true) : Items();
    if (!items.contains(item))
        items.append(item);
    rebuild(items);
}

void PlainItemModel::onAfterAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    const int open = openChange(folder, item);
    const bool isConcerned = concerns(folder);
    // The folder was shown, or shown anew, while it did not list the item yet.
    const bool isLacking = isConcerned && item && m_isListed && !m_listed.contains(item);
    if (open < 0 && !isLacking)
        return;
    if (open < 0)
        begin();
    else
        m_open.removeAt(open);
    if (isLacking)
        rebuild();
    if (isConcerned)
        tell(AfterAddItem, 0, folder, item);
    end();
}

void PlainItemModel::onBeforeRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item)
{
    if (!item || !concerns(folder))
        return;
    const QList<int> gone = rowsOf(item);
    if (!gone.isEmpty())
        begin();
    for (const int row : gone)
        tell(RemoveItem, row);
    for (int i = gone.size() - 1; i >= 0; --i)
        m_lines.removeAt(gone.at(i));
    for (Group &group : m_groups)
        group.members.removeAll(item);
    m_listed.removeAll(item);
    if (!gone.isEmpty())
        end();
}

void PlainItemModel::onBeforeClearItemsEvent(INxFolderMedia *folder)
{
    if (m_folder != folder || openChange(folder, nullptr) >= 0)
        return;
    m_open.append({folder, nullptr});
    begin();
    empty();
}

void PlainItemModel::onAfterClearItemsEvent(INxFolderMedia *folder)
{
    const int open = openChange(folder, nullptr);
    if (open < 0)
        return;
    m_open.removeAt(open);
    end();
}

void PlainItemModel::onRenameItemEvent(INxFolderMedia *, INxAbstractMedia *item)
{
    changed(item);
}

void PlainItemModel::onMediaStateChangedEvent(INxAbstractMedia *item)
{
    changed(item);
}

void PlainItemModel::onDownloadProgressEvent(INxAbstractMedia *item, int kind, qint64, qint64)
{
    if (isContent(kind))
        changed(item);
}

void PlainItemModel::onDownloadFinishedEvent(INxAbstractMedia *item, int kind, bool failed)
{
    if (isContent(kind)) {
        changed(item);
        tell(failed ? DownloadFailed : DownloadFinished, 0, nullptr, item);
    } else if ((kind == 0 || kind == 1) && !failed) {
        changed(item);
    }
}

void PlainItemModel::onFetchMoreStateChangedEvent(INxFolderMedia *folder,
                                                  INxFolderMedia::FolderFetchMoreState state)
{
    if (folder == m_folder)
        tell(FetchMoreStateChanged, state);
}

void PlainItemModel::onAllMediaChangedFinishEvent(INxFolderMedia *folder)
{
    INxFolderMedia *loaded = folder;
    if (m_folder)
        loaded = concerns(folder) ? m_folder.data() : nullptr;
    if (!loaded)
        return;
    if (loaded->isSearchResult()) {
        if (m_filter.mode != 5)
            return;
        begin();
        showSimilar(loaded);
        end();
        return;
    }
    if (!loaded->isLoaded())
        return;
    const INxFolderMedia *owner = loaded->owner();
    const bool noSort =
        loaded->kind() != 9 && owner && owner->holdsMediaType(5) && !loaded->holdsMediaType(6);
    const bool earlier = m_sortEnable;
    m_sortEnable = !noSort;
    load(loaded);
    m_sortEnable = !noSort && earlier;
}

void PlainItemModel::onVCGDownloadLimit()
{
    tell(DownloadLimit);
}
