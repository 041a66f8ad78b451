// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxEngineFolder.h>

#include <NxVBLEngine/objects/NxEngineCategory.h>
#include <NxVBLEngine/objects/NxEngineItem.h>
#include <NxVBLEngine/objects/NxResourceCatalogue.h>

#include <algorithm>

using namespace NXVBLMODEL;

NxEngineFolder::NxEngineFolder(NxEngineCategory *category)
    : m_category(category),
      m_id(fidHiddenRoot),
      m_kind(fkNone),
      m_online(false),
      m_takesMedia(false),
      m_takesFolders(false)
{
}

NxEngineFolder::NxEngineFolder(NxEngineCategory *category, const NxSectionEntry &section)
    : m_category(category),
      m_id(section.id),
      m_kind(section.kind),
      m_online(section.online),
      m_takesMedia(section.takesMedia),
      m_takesFolders(section.takesFolders),
      m_name(section.name)
{
}

NxEngineFolder::NxEngineFolder(NxEngineCategory *category, const NxFolderRecord &record, int kind)
    : m_category(category),
      m_id(record.id),
      m_kind(kind),
      m_online(false),
      m_takesMedia(true),
      m_takesFolders(true),
      m_place(record.place),
      m_name(record.name)
{
}

NxEngineFolder::~NxEngineFolder() = default;

NxFolderRecord NxEngineFolder::record() const
{
    return {m_id,
            m_category->categoryType(),
            m_parent ? m_parent->folderId() : int(fidHiddenRoot),
            m_place,
            m_name,
            m_parent != nullptr};
}

bool NxEngineFolder::listsGuests() const
{
    return m_kind == fkFavourites;
}

int NxEngineFolder::rowForPlace(qint64 place) const
{
    const auto row = std::lower_bound(
        m_children.begin(), m_children.end(), place,
        [](const NxEngineFolder *child, qint64 wanted) { return child->m_place < wanted; });
    return int(row - m_children.begin());
}

void NxEngineFolder::insertChild(NxEngineFolder *child)
{
    const int row = rowForPlace(child->m_place);
    m_children.insert(m_children.begin() + row, child);
    child->m_parent = this;
    renumberChildren(row);
}

void NxEngineFolder::takeChild(NxEngineFolder *child)
{
    const int row = child->m_row;
    m_children.erase(m_children.begin() + row);
    child->m_parent = nullptr;
    child->m_row = -1;
    renumberChildren(row);
}

void NxEngineFolder::renumberChildren(int fromRow)
{
    for (int row = fromRow; row < int(m_children.size()); ++row)
        m_children[size_t(row)]->m_row = row;
}

NxEngineFolder *NxEngineFolder::childNamed(const QString &name) const
{
    const auto child = std::find_if(
        m_children.begin(), m_children.end(),
        [&name](const NxEngineFolder *candidate) { return candidate->m_name == name; });
    return child == m_children.end() ? nullptr : *child;
}

void NxEngineFolder::insertItem(NxEngineItem *item)
{
    item->setFolder(this);
    if (m_items.empty() || m_items.back()->place() < item->place()) {
        m_items.push_back(item);
        return;
    }
    const auto spot = std::lower_bound(
        m_items.begin(), m_items.end(), item->place(),
        [](const NxEngineItem *listed, qint64 place) { return listed->place() < place; });
    m_items.insert(spot, item);
}

void NxEngineFolder::takeItem(NxEngineItem *item)
{
    const auto spot = std::lower_bound(
        m_items.begin(), m_items.end(), item->place(),
        [](const NxEngineItem *listed, qint64 place) { return listed->place() < place; });
    Q_ASSERT(spot != m_items.end() && *spot == item);
    m_items.erase(spot);
    item->setFolder(nullptr);
}

void NxEngineFolder::insertGuest(NxEngineItem *item)
{
    const auto earlier = [](const NxEngineItem *a, const NxEngineItem *b) {
        return std::make_pair(a->favouriteTime(), a->resourceId())
               < std::make_pair(b->favouriteTime(), b->resourceId());
    };
    m_items.insert(std::upper_bound(m_items.begin(), m_items.end(), item, earlier), item);
}

void NxEngineFolder::takeGuest(NxEngineItem *item)
{
    m_items.erase(std::remove(m_items.begin(), m_items.end(), item), m_items.end());
}

QString NxEngineFolder::mediaId() const
{
    return QStringLiteral("folder:%1:%2").arg(m_category->categoryType()).arg(m_id);
}

QList<INxAbstractMedia *> NxEngineFolder::items(bool recursive, bool mediaOnly) const
{
    QList<INxAbstractMedia *> list;
    list.reserve(itemCount(recursive));
    appendItems(&list, recursive, mediaOnly);
    return list;
}

void NxEngineFolder::appendItems(QList<INxAbstractMedia *> *list, bool recursive,
                                 bool mediaOnly) const
{
    for (NxEngineItem *item : m_items)
        list->append(item);
    for (NxEngineFolder *child : m_children) {
        if (!mediaOnly)
            list->append(child);
        if (recursive && !child->listsGuests()) // Guests are listed at home, too.
            child->appendItems(list, true, mediaOnly);
    }
}

INxAbstractMedia *NxEngineFolder::lastMedia(bool recursive) const
{
    for (auto child = m_children.rbegin(); recursive && child != m_children.rend(); ++child) {
        INxAbstractMedia *last = (*child)->listsGuests() ? nullptr : (*child)->lastMedia(true);
        if (last)
            return last;
    }
    return m_items.empty() ? nullptr : m_items.back();
}

int NxEngineFolder::listedPlace(const INxAbstractMedia *media, bool recursive) const
{
    const auto *item = dynamic_cast<const NxEngineItem *>(media);
    if (!item || listsGuests() || !containsMedia(media, recursive))
        return INxFolderMedia::listedPlace(media, recursive);
    const NxEngineFolder *folder = item->folder();
    const auto spot = std::lower_bound(
        folder->m_items.begin(), folder->m_items.end(), item->place(),
        [](const NxEngineItem *listed, qint64 place) { return listed->place() < place; });
    int place = int(spot - folder->m_items.begin());
    for (; folder != this; folder = folder->m_parent)
        place += folder->m_parent->mediaBefore(folder);
    return place;
}

int NxEngineFolder::mediaCount() const
{
    int count = int(m_items.size());
    for (const NxEngineFolder *child : m_children)
        count += child->listsGuests() ? 0 : child->mediaCount();
    return count;
}

int NxEngineFolder::mediaBefore(const NxEngineFolder *child) const
{
    int count = int(m_items.size());
    for (const NxEngineFolder *sibling : m_children) {
        if (sibling == child)
            break;
        count += sibling->listsGuests() ? 0 : sibling->mediaCount();
    }
    return count;
}

int NxEngineFolder::itemCount(bool recursive) const
{
    int count = int(m_items.size());
    if (!recursive)
        return count;
    for (const NxEngineFolder *child : m_children)
        count += child->itemCount(true) + 1;
    return count;
}

bool NxEngineFolder::containsMedia(const INxAbstractMedia *media, bool recursive) const
{
    if (listsGuests())
        return std::find(m_items.begin(), m_items.end(), media) != m_items.end();
    return INxFolderMedia::containsMedia(media, recursive);
}

INxAbstractMedia *NxEngineFolder::findMedia(const QString &id, bool recursive) const
{
    NxEngineItem *item = m_category->findItem(id.toLongLong());
    return containsMedia(item, recursive) ? item : nullptr;
}

INxAbstractMedia *NxEngineFolder::findMediaByPath(const QString &path, bool recursive) const
{
    NxEngineItem *item = m_category->findItemByPath(path);
    return containsMedia(item, recursive) ? item : nullptr;
}

QList<INxFolderMedia *> NxEngineFolder::childFolders() const
{
    QList<INxFolderMedia *> list;
    list.reserve(int(m_children.size()));
    for (NxEngineFolder *child : m_children)
        list.append(child);
    return list;
}

INxFolderMedia *NxEngineFolder::childFolder(int row) const
{
    return row >= 0 && row < int(m_children.size()) ? m_children[size_t(row)] : nullptr;
}

int NxEngineFolder::rowInParent() const
{
    return m_row;
}

int NxEngineFolder::depth() const
{
    int depth = 0;
    for (const NxEngineFolder *folder = m_parent; folder; folder = folder->m_parent)
        ++depth;
    return depth;
}

bool NxEngineFolder::holdsMediaType(int folderKind) const
{
    return isKind(folderKind) || (m_online && folderKind == fkOnline);
}

INxMediaManager *NxEngineFolder::mediaManager() const
{
    return m_category;
}
