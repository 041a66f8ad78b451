// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxFolderMedia.h>

#include <algorithm>
#include <memory>
#include <vector>

/// A folder with items of its own and folders below, which answers what a test wrote into it.
///
/// Owns the folders below, not the items. Tells nobody of anything.
struct ScriptedItemFolder final : INxFolderMedia
{
    using Items = QList<INxAbstractMedia *>;

    explicit ScriptedItemFolder(const QString &called = QString(),
                                int folderKind = NXVBLMODEL::fkNone)
        : title(called),
          itsKind(folderKind)
    {
    }

    QString name() const override { return title; }
    INxFolderMedia *parentFolder() const override { return above; }
    int folderId() const override { return id; }
    int kind() const override { return itsKind; }
    INxMediaManager *mediaManager() const override
    {
        return managed || !above ? managed : above->mediaManager();
    }
    bool holdsMediaType(int folderKind) const override
    {
        return isKind(folderKind) || extraKinds.contains(folderKind);
    }
    bool isSearchResult() const override { return searchResult; }
    bool isSearchFolder() const override { return searchFolder; }
    bool isLoaded() const override { return loaded; }
    bool isNewnessOrdered() const override { return newnessOrdered; }
    bool canFetchMore() const override { return hasMorePages; }
    Items similarPackItems() const override { return pack; }
    bool isSupportKeywordSearch() const override { return keywordSearch; }
    bool isSupportOnlineSearch() const override { return onlineSearch; }
    bool isSupportSimilarSearch() const override { return similarSearch; }
    void setSearchEnabled(bool enabled) override { searchSwitches.append(enabled); }
    QList<INxFolderMedia *> childFolders() const override
    {
        QList<INxFolderMedia *> list;
        for (const auto &child : children)
            list.append(child.get());
        return list;
    }
    Items items(bool recursive, bool mediaOnly) const override
    {
        Items list = media;
        for (const auto &child : children) {
            if (!mediaOnly)
                list.append(child.get());
            if (recursive)
                list.append(child->items(true, mediaOnly));
        }
        return list;
    }

    /// Listed here or below: also what is at home elsewhere.
    bool containsMedia(const INxAbstractMedia *wanted, bool recursive) const override
    {
        const Items listed = items(recursive, true);
        return std::find(listed.begin(), listed.end(), wanted) != listed.end();
    }

    ScriptedItemFolder *append(std::unique_ptr<ScriptedItemFolder> child)
    {
        child->above = this;
        children.push_back(std::move(child));
        return children.back().get();
    }
    /// Destroys a folder right below, with all folders in it.
    void destroy(const ScriptedItemFolder *child)
    {
        const auto place = std::find_if(children.begin(), children.end(),
                                        [child](const auto &one) { return one.get() == child; });
        const std::unique_ptr<ScriptedItemFolder> dying = std::move(*place);
        children.erase(place);
    }

    QString title;
    int itsKind;
    int id = NXVBLMODEL::fidFirstUserFolder;
    QList<int> extraKinds;
    bool searchResult = false;
    bool searchFolder = false;
    bool keywordSearch = true;
    bool onlineSearch = false;
    bool similarSearch = false;
    QList<bool> searchSwitches; ///< How the search was switched, the latest last.
    bool loaded = true;
    bool newnessOrdered = false;
    bool hasMorePages = false;
    ScriptedItemFolder *above = nullptr; // Not owned.
    INxMediaManager *managed = nullptr; ///< Null: as the folder above says. Not owned.
    std::vector<std::unique_ptr<ScriptedItemFolder>> children;
    Items media; ///< In the order in which they are listed. Not owned.
    Items pack; ///< What a similar search calls one series. Not owned.
};
