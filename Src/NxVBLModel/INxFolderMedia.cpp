// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxFolderMedia.h>

#include <algorithm>

namespace {

INxAbstractMedia *firstWith(const INxFolderMedia *folder, bool recursive, const QString &wanted,
                            QString (INxAbstractMedia::*query)() const)
{
    if (wanted.isEmpty())
        return nullptr;
    const QList<INxAbstractMedia *> listed = folder->items(recursive, true);
    for (INxAbstractMedia *media : listed) {
        if ((media->*query)() == wanted)
            return media;
    }
    return nullptr;
}

bool isReachedFrom(const INxFolderMedia *parent, const INxFolderMedia *wanted, bool recursive)
{
    while (recursive && parent && parent != wanted)
        parent = parent->parentFolder();
    return parent == wanted;
}

} // namespace

INxFolderMedia::~INxFolderMedia() = default;

NXVBLMODEL::NxMediaType INxFolderMedia::mediaType() const
{
    return NXVBLMODEL::mtFolder;
}

int INxFolderMedia::listedPlace(const INxAbstractMedia *media, bool recursive) const
{
    const QList<INxAbstractMedia *> listed = items(recursive, true);
    const auto found = std::find(listed.begin(), listed.end(), media);
    return found == listed.end() ? -1 : int(found - listed.begin());
}

INxAbstractMedia *INxFolderMedia::lastMedia(bool recursive) const
{
    const QList<INxAbstractMedia *> listed = items(recursive, true);
    return listed.isEmpty() ? nullptr : listed.last();
}

bool INxFolderMedia::contains(const INxFolderMedia *folder, bool recursive) const
{
    return folder && isReachedFrom(folder->parentFolder(), this, recursive);
}

bool INxFolderMedia::containsMedia(const INxAbstractMedia *media, bool recursive) const
{
    return media && isReachedFrom(media->parentFolder(), this, recursive);
}

INxAbstractMedia *INxFolderMedia::findMedia(const QString &id, bool recursive) const
{
    return firstWith(this, recursive, id, &INxAbstractMedia::mediaId);
}

INxAbstractMedia *INxFolderMedia::findMediaByPath(const QString &path, bool recursive) const
{
    return firstWith(this, recursive, path, &INxAbstractMedia::sourcePath);
}

QList<INxFolderMedia *> INxFolderMedia::childFolders() const
{
    return {};
}

INxFolderMedia *INxFolderMedia::childFolder(int row) const
{
    return childFolders().value(row, nullptr);
}

int INxFolderMedia::childFolderCount() const
{
    return childFolders().size();
}

int INxFolderMedia::rowInParent() const
{
    const INxFolderMedia *parent = parentFolder();
    return parent ? parent->childFolders().indexOf(const_cast<INxFolderMedia *>(this)) : -1;
}

bool INxFolderMedia::hasChildFolders() const
{
    return childFolderCount() > 0;
}

int INxFolderMedia::depth() const
{
    const INxFolderMedia *parent = parentFolder();
    return parent ? parent->depth() + 1 : 0;
}

QString INxFolderMedia::toolTipText() const
{
    return name();
}

int INxFolderMedia::kind() const
{
    return NXVBLMODEL::fkNone;
}

bool INxFolderMedia::isKind(int folderKind) const
{
    return kind() == folderKind;
}

bool INxFolderMedia::holdsMediaType(int folderKind) const
{
    return isKind(folderKind);
}

INxFolderMedia *INxFolderMedia::owner() const
{
    if (isSearchFolder())
        return nullptr;
    auto *section = const_cast<INxFolderMedia *>(this);
    while (section->parentFolder() && section->parentFolder()->parentFolder())
        section = section->parentFolder();
    return section->parentFolder() ? section : nullptr;
}

bool INxFolderMedia::isSearchResult() const
{
    return false;
}

bool INxFolderMedia::isSearchFolder() const
{
    return isSearchResult();
}

bool INxFolderMedia::isCategoryTreeFolder() const
{
    return depth() > 0 && !isSearchFolder();
}

bool INxFolderMedia::isLoaded() const
{
    return true;
}

bool INxFolderMedia::isNewnessOrdered() const
{
    return false;
}

bool INxFolderMedia::canFetchMore() const
{
    return false;
}

void INxFolderMedia::fetchMore() {}

void INxFolderMedia::setFetchMoreState(FolderFetchMoreState) {}

void INxFolderMedia::setSearchEnabled(bool) {}

bool INxFolderMedia::isSupportKeywordSearch() const
{
    return true;
}

bool INxFolderMedia::isSupportOnlineSearch() const
{
    return false;
}

bool INxFolderMedia::isSupportSimilarSearch() const
{
    return false;
}

INxMediaManager *INxFolderMedia::mediaManager() const
{
    return nullptr;
}

bool INxFolderMedia::canAddMedia() const
{
    return depth() > 0 && !isSearchFolder();
}

bool INxFolderMedia::isSpecial() const
{
    return depth() <= 1 || isSearchFolder();
}

bool INxFolderMedia::needConvert() const
{
    return false;
}

QList<INxAbstractMedia *> INxFolderMedia::similarPackItems() const
{
    return {};
}
