// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PlainItemModel.h"

#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <algorithm>

#include "PlainEngines.h"

namespace {

constexpr int SimilarSearch = 5;
constexpr int OwnFolderKind = 9;
constexpr int OnlineKind = 5;
constexpr int RecentKind = 6;

struct Sort
{
    int key;
    bool descending;
};

/// The folder's nature goes before the user's choice.
Sort sortFor(const INxFolderMedia *folder, const Sort &chosen)
{
    constexpr int created = 3;
    constexpr int favoured = 9;
    constexpr int downloaded = 10;
    constexpr int newness = 14;
    if (folder->isNewnessOrdered())
        return {newness, false};
    if (chosen.key == newness && folder->holdsMediaType(8))
        return {favoured, chosen.descending};
    if (chosen.key == newness && folder->holdsMediaType(11))
        return {downloaded, chosen.descending};
    if (folder->holdsMediaType(RecentKind))
        return {created, true};
    return chosen;
}

} // namespace

PlainItemModel::~PlainItemModel()
{
    QObject::disconnect(m_death);
}

bool PlainItemModel::concerns(const INxFolderMedia *folder) const
{
    if (folder == m_folder)
        return true;
    while (folder && folder != m_folder)
        folder = folder->parentFolder();
    return folder != nullptr;
}

bool PlainItemModel::mayGroup() const
{
    if (!m_folder)
        return false;
    if (m_folder->kind() == OwnFolderKind || m_filter.mode == SimilarSearch)
        return true;
    const INxFolderMedia *owner = m_folder->owner();
    if (m_folder->isSearchResult() || !m_filter.keyword.isEmpty() || !owner)
        return false;
    for (const int kind : {1, 2, 3, 4, 8, 11}) {
        if (owner->holdsMediaType(kind))
            return true;
    }
    return false;
}

bool PlainItemModel::isGrouped() const
{
    return mayGroup() && m_groupKey != 0;
}

bool PlainItemModel::passesType(const INxAbstractMedia *media) const
{
    const int state = media->state();
    switch (m_filter.type) {
    case 1:
        return NxMediaLibraryUtils::isVideo(media) && !NxMediaLibraryUtils::isPhoto(media);
    case 2:
        return NxMediaLibraryUtils::isPhoto(media);
    case 3:
        return media->mediaType() == 3;
    case 4:
        return media->mediaType() == 14;
    case 5:
        return state == 2;
    case 6:
        return state == 1;
    case 7:
        return state == -1 || state == 0;
    case 8:
        return state != 0;
    default:
        return true;
    }
}

bool PlainItemModel::passes(const INxAbstractMedia *media) const
{
    if (!media)
        return false;
    const int type = media->mediaType();
    if (type == HeaderRow || type == ImportTileRow || type == MoreTileRow)
        return false;
    if (type != 16 && !passesType(media))
        return false;
    return m_filter.keyword.isEmpty()
           || media->name().contains(m_filter.keyword, Qt::CaseInsensitive);
}

PlainItemModel::Items PlainItemModel::filtered(const Items &items) const
{
    Items passing;
    for (INxAbstractMedia *media : items) {
        if (passes(media))
            passing.append(media);
    }
    return passing;
}

PlainItemModel::Items PlainItemModel::ungrouped(const Items &items) const
{
    const Sort sort = sortFor(m_folder, {m_sortKey, m_sortDescending});
    const Items passing = filtered(items);
    return m_sortEnable ? PlainEngines::sorted(passing, sort.key, sort.descending) : passing;
}

bool PlainItemModel::showsTiles() const
{
    const INxFolderMedia *owner = m_folder->owner();
    return owner && (owner->holdsMediaType(1) || owner->holdsMediaType(2));
}

QList<PlainItemModel::Line> PlainItemModel::linesOf(int group) const
{
    QList<Line> lines;
    if (m_groups.at(group).hasTile)
        lines.append({ImportTileRow, nullptr, group});
    for (INxAbstractMedia *member : m_groups.at(group).members)
        lines.append({ItemRow, member, -1});
    return lines;
}

void PlainItemModel::empty()
{
    m_groups.clear();
    m_lines.clear();
    m_listed.clear();
    m_isListed = false;
}

void PlainItemModel::rebuild(const Items &items)
{
    empty();
    if (!m_folder)
        return;
    m_listed = items;
    m_isListed = true;
    if (isGrouped()) {
        layOutGroups(items);
        return;
    }
    for (INxAbstractMedia *media : ungrouped(items))
        m_lines.append({ItemRow, media, -1});
    if (!m_lines.isEmpty() && showsTiles())
        m_lines.prepend({ImportTileRow, nullptr, -1});
}

void PlainItemModel::rebuild()
{
    rebuild(m_folder ? m_folder->items(true, true) : Items());
}

void PlainItemModel::layOutGroups(const Items &items)
{
    const auto groups = PlainEngines::grouped(items, m_groupKey, m_groupDescending);
    for (const PlainEngines::Group &group : groups) {
        Items members = filtered(group.members);
        if (members.isEmpty())
            continue;
        if (m_sortEnable)
            members = PlainEngines::sorted(members, m_sortKey, m_sortDescending);
        m_groups.append({group.title, members, showsTiles(), true});
        m_lines.append({HeaderRow, nullptr, m_groups.size() - 1});
        m_lines.append(linesOf(m_groups.size() - 1));
    }
}

void PlainItemModel::appendPack(const Items &pack)
{
    const int most = m_perLine == 0 ? pack.size() : m_perLine * m_similarLines;
    for (INxAbstractMedia *media : pack.mid(0, most))
        m_lines.append({ItemRow, media, -1});
    if (pack.size() > most)
        m_lines.append({MoreTileRow, nullptr, -1});
}

void PlainItemModel::showSimilar(INxFolderMedia *folder)
{
    empty();
    if (!folder)
        return;
    const Items series = folder->similarPackItems();
    Items others;
    for (INxAbstractMedia *media : folder->items(true, true)) {
        if (!series.contains(media))
            others.append(media);
    }
    appendPack(filtered(series));
    appendPack(filtered(others));
}

void PlainItemModel::load(INxFolderMedia *folder)
{
    begin();
    m_folder = folder;
    rebuild();
    QObject::disconnect(m_death);
    if (folder)
        m_death = QObject::connect(folder, &QObject::destroyed, [this] { load(nullptr); });
    end();
}

void PlainItemModel::clear()
{
    begin();
    empty();
    end();
}

void PlainItemModel::setSortBy(int key, bool descending)
{
    begin();
    m_sortKey = key;
    m_sortDescending = descending;
    rebuild();
    end();
}

void PlainItemModel::setGroupBy(int key, bool descending)
{
    begin();
    m_groupKey = key;
    m_groupDescending = descending;
    rebuild();
    end();
}

void PlainItemModel::setFilter(const Filter &filter)
{
    const bool wasSimilar = m_filter.mode == SimilarSearch;
    const bool isOtherAnchor = m_filter.anchor != filter.anchor;
    begin();
    m_filter = filter;
    m_similarLines = filter.largeSteps ? 6 : 2;
    empty();
    if (filter.mode != SimilarSearch)
        rebuild();
    else if (wasSimilar && isOtherAnchor)
        showSimilar(m_folder);
    end();
}

void PlainItemModel::setItemCountPerLine(int count, bool rescale)
{
    if (rescale && count != 0)
        m_similarLines = m_perLine * m_similarLines / count;
    m_perLine = count;
}

void PlainItemModel::expandStateToggle(int row, bool expand)
{
    begin();
    if (row >= 0 && row < m_lines.size() && m_lines.at(row).type == HeaderRow) {
        const int group = m_lines.at(row).group;
        QList<Line> &lines = m_lines;
        m_groups[group].expanded = expand;
        if (expand) {
            lines = lines.mid(0, row + 1) + linesOf(group) + lines.mid(row + 1);
        } else {
            const Items members = m_groups.at(group).members;
            const auto isMember = [&](const Line &line) {
                return line.type == ItemRow ? members.contains(line.media)
                                            : line.type == ImportTileRow && line.group == group;
            };
            lines.erase(std::remove_if(lines.begin(), lines.end(), isMember), lines.end());
        }
    }
    end();
}

void PlainItemModel::viewMoreSimilarPackItem(bool large)
{
    m_similarLines += large ? 6 : 2;
    updateSimilarMediaItems();
}

void PlainItemModel::updateSimilarMediaItems()
{
    begin();
    showSimilar(m_folder);
    end();
}
