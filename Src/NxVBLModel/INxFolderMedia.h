// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMedia.h>

#include <QObject>

class INxMediaManager;

/// A folder of a category: the hidden root, a section, a folder of the user, or a search folder.
///
/// Each category has one hidden root (id 0, depth 0, never shown, takes no media). Its children,
/// at depth 1, are the sections; a user's folders stand below a section, with ids above 1000.
/// Folders are watched with QPointer. Owned by the folder manager. GUI thread only.
class NXVBLMODEL_EXPORT INxFolderMedia : public QObject, public INxAbstractMedia
{
    Q_OBJECT
public:
    /// Where the paging of an online folder stands.
    enum FolderFetchMoreState : int {
        FetchMoreNone = 0,
        FetchMoreLoading = 1,
        FetchMoreAvailable = 2,
        FetchMoreFinished = 3,
        FetchMoreFailed = 4,
    };
    Q_ENUM(FolderFetchMoreState)

    ~INxFolderMedia() override;

    [[nodiscard]] NXVBLMODEL::NxMediaType mediaType() const override;

    /// What the folder lists: its own items in the order in which they were added (a move adds at
    /// the end), then, when `recursive`, each child folder's in child order, depth first. With
    /// `mediaOnly` no folder objects, otherwise each child folder stands before its items. The
    /// order is the same after the project is opened again.
    [[nodiscard]] virtual QList<INxAbstractMedia *> items(bool recursive, bool mediaOnly) const = 0;
    /// The last of items(recursive, true); null when there is none. Asked at every addition, so an
    /// engine that expects many media answers without listing them.
    [[nodiscard]] virtual INxAbstractMedia *lastMedia(bool recursive) const;
    /// The place of a media in items(recursive, true); -1 when it is not listed. Asked when a media
    /// comes back that is not the last one, so an engine that expects many media answers without
    /// listing them.
    [[nodiscard]] virtual int listedPlace(const INxAbstractMedia *media, bool recursive) const;
    /// False for the folder itself.
    [[nodiscard]] virtual bool contains(const INxFolderMedia *folder, bool recursive) const;
    /// Walks up the media's parents: O(depth).
    [[nodiscard]] virtual bool containsMedia(const INxAbstractMedia *media, bool recursive) const;
    /// Null when the folder holds no media of this id.
    [[nodiscard]] virtual INxAbstractMedia *findMedia(const QString &id, bool recursive) const;
    /// Null when the folder holds no media of this source path.
    [[nodiscard]] virtual INxAbstractMedia *findMediaByPath(const QString &path,
                                                            bool recursive) const;

    [[nodiscard]] virtual QList<INxFolderMedia *> childFolders() const;
    /// Null when out of range. O(1).
    [[nodiscard]] virtual INxFolderMedia *childFolder(int row) const;
    [[nodiscard]] virtual int childFolderCount() const;
    /// Place among the siblings; -1 without a parent. O(1) in an engine that expects many.
    [[nodiscard]] virtual int rowInParent() const;
    [[nodiscard]] virtual bool hasChildFolders() const;
    /// The hidden root answers 0, a section 1.
    [[nodiscard]] virtual int depth() const;

    [[nodiscard]] virtual int folderId() const = 0;
    [[nodiscard]] virtual QString toolTipText() const;
    /// NXVBLMODEL::NxFolderKind.
    [[nodiscard]] virtual int kind() const;
    [[nodiscard]] virtual bool isKind(int folderKind) const;
    /// isKind(), or one of the folder's further kinds: a custom folder of the favourites also
    /// holds the favourites' kind.
    [[nodiscard]] virtual bool holdsMediaType(int folderKind) const;
    /// The folder's section, itself when it is one; null for the hidden root and search folders.
    [[nodiscard]] virtual INxFolderMedia *owner() const;

    /// True for a folder whose contents are a search result: not grouped.
    [[nodiscard]] virtual bool isSearchResult() const;
    [[nodiscard]] virtual bool isSearchFolder() const;
    /// True for sections and everything below them.
    [[nodiscard]] virtual bool isCategoryTreeFolder() const;
    /// False while a service has not delivered the folder's contents.
    [[nodiscard]] virtual bool isLoaded() const;
    /// True when the newest come first whatever else is chosen.
    [[nodiscard]] virtual bool isNewnessOrdered() const;

    /// False while a page is in flight.
    [[nodiscard]] virtual bool canFetchMore() const;
    /// Asks for the next page; ignored while one is in flight.
    virtual void fetchMore();
    /// Announces the state to the observers.
    virtual void setFetchMoreState(FolderFetchMoreState state);

    virtual void setSearchEnabled(bool enabled);
    [[nodiscard]] virtual bool isSupportKeywordSearch() const;
    [[nodiscard]] virtual bool isSupportOnlineSearch() const;
    [[nodiscard]] virtual bool isSupportSimilarSearch() const;

    [[nodiscard]] virtual INxMediaManager *mediaManager() const;
    /// True when media may be added to this very folder.
    [[nodiscard]] virtual bool canAddMedia() const;
    /// True for the fixed folders that may not be renamed, moved or removed.
    [[nodiscard]] virtual bool isSpecial() const;
    /// True when the folder holds resources of an older format.
    [[nodiscard]] virtual bool needConvert() const;
    /// The part of a similar search's result that belongs to the same series.
    [[nodiscard]] virtual QList<INxAbstractMedia *> similarPackItems() const;
};

Q_DECLARE_METATYPE(INxFolderMedia *)
