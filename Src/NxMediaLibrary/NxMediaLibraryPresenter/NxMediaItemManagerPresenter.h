// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxBaseMediaPresenter.h>
#include <NxVBLModel/INxAbstractMedia.h>

#include <QList>
#include <QString>

#include <memory>

class INxAbstractMediaItem;
class INxFolderMedia;
class INxMediaItemManager;
class INxMediaItemStrategy;
class NxMediaItemManagerPresenterPrivate;

/// The item list of one category: which folder it shows and how, what is selected, and what the
/// user does to media.
///
/// How the list is shown is kept in the settings at every change. Whoever shows it (the view side)
/// follows the signals, and serves those that ask for something: an import, a custom item, another
/// selection. A setter given what is set already does nothing, except setSortBy(), which sorts
/// and selects again.
///
/// What is removed from the project, by whomever, leaves the selection. What an undo or a redo
/// brings back into the shown folder is selected; what it renames is sorted in again.
class NXMEDIALIBRARY_EXPORT NxMediaItemManagerPresenter : public NxBaseMediaPresenter
{
    Q_OBJECT
public:
    /// The manager is not owned; it may be null, and may die first.
    NxMediaItemManagerPresenter(INxMediaItemManager *manager, QObject *parent);
    ~NxMediaItemManagerPresenter() override;

    /// Null once it died.
    [[nodiscard]] INxMediaItemManager *itemManager() const;
    /// NXVBLMODEL::mctNone without a manager.
    [[nodiscard]] NXVBLMODEL::NxMediaCategoryType categoryType() const;

    // How the list is shown

    /// Takes over how the category was last shown. Emits and writes nothing.
    void loadViewState();

    /// The folder whose contents are shown; null at first, and once it died.
    [[nodiscard]] INxFolderMedia *folder() const;
    /// Null is ignored. A search folder leaves the tree's selected folder as it is.
    void setFolder(INxFolderMedia *folder);
    /// The folder that is selected in the category's tree; null at first, and once it died.
    [[nodiscard]] INxFolderMedia *getCategoryTreeSelectedFolder() const;
    /// Asks the view side to open a folder.
    void gotoFolder(INxFolderMedia *folder);

    [[nodiscard]] NXMEDIALIBRARY::NxMediaItemViewMode viewMode() const;
    /// Becomes the mode of every category.
    void setViewMode(const NXMEDIALIBRARY::NxMediaItemViewMode &mode);

    [[nodiscard]] NXMEDIALIBRARY::NxMediaItemViewSort getSortBy() const;
    /// With a key, also the one that is set already, the list is sorted and its selection asked
    /// for again. Without a key nothing is announced.
    void setSortBy(const NXMEDIALIBRARY::NxMediaItemViewSort &sort);
    /// What usage events call a sort key; empty for one that has no name there.
    [[nodiscard]] QString getMediaItemSortByAlias(
        const NXMEDIALIBRARY::NxMediaItemViewSort &sort) const;
    /// "asc" or "desc".
    [[nodiscard]] QString getMediaItemSortOrderAlias(
        const NXMEDIALIBRARY::NxMediaItemViewSort &sort) const;

    [[nodiscard]] NXMEDIALIBRARY::NxMediaItemViewGroup getGroupBy() const;
    void setGroupBy(const NXMEDIALIBRARY::NxMediaItemViewGroup &group);

    [[nodiscard]] NXMEDIALIBRARY::NxMediaItemViewFilter getFilter() const;
    void setFilter(const NXMEDIALIBRARY::NxMediaItemViewFilter &filter);
    void setFilterType(const NXMEDIALIBRARY::NxMediaTypeFilter &type);
    /// A keyword begins a new search, an empty one ends it.
    void setFilterKeyword(const QString &keyword, NXMEDIALIBRARY::ESearchMode_e mode);
    /// Searches for what looks like a resource.
    /// @param keyword path of the picture that the bar of the search shows.
    /// @param listView "View More" reveals six lines at once, not two.
    void setFilterSimilarResource(long long id, NXVBLMODEL::NxMediaCategoryType category,
                                  const QString &keyword, bool showBar, bool listView);
    /// Takes a similar search out of the filter, and leaves any other filter as it is. Wanted when
    /// the user leaves such a search, picks a folder, or begins to search by keyword.
    void clearSimilarSearch();
    /// Asks for the folder that was shown before the search.
    void exitSearchFolder();

    // The selection

    /// In the order in which they were selected. Not owned.
    [[nodiscard]] QList<INxAbstractMedia *> selectedItems() const;
    /// Told by the view side.
    void setSelectedItems(const QList<INxAbstractMedia *> &items);
    [[nodiscard]] bool multiSelected() const;
    /// These ask the view side.
    void selectAll();
    void clearSelection();
    void selectItems(const QList<INxAbstractMedia *> &items);

    // Media come and go

    /// Has files imported by the view side, at once. Answers what was made.
    QList<INxAbstractMediaItem *> importMeidas(const NXMEDIALIBRARY::NxMediaImportParam &param);
    /// Has the view side make a custom item; null when it makes none.
    INxAbstractMediaItem *addCustomMediaItem(const NXMEDIALIBRARY::NxMediaAddCustomParam &param);
    bool addMediaItems(const QList<INxAbstractMedia *> &items);
    bool addMediaItems(INxFolderMedia *folder, const QList<INxAbstractMedia *> &items);
    /// False when refused.
    bool renameMediaItem(INxAbstractMedia *item, const QString &name);
    /// Asks the user, and removes media from the project and its timelines, as one undo step.
    /// `folder` holds them, itself or further in. False only without a manager: a refusal of the
    /// user is an answer, too.
    bool removeMediaItems(INxFolderMedia *folder, const QList<INxAbstractMedia *> &items);
    /// The same with what getUnusedMedias() answers; false when there is nothing.
    bool removeUnusedMedia(INxFolderMedia *folder);
    /// Appends the media of a folder, and of those below it, that no timeline uses. None without
    /// an open project.
    void getUnusedMedias(INxFolderMedia *folder, QList<INxAbstractMedia *> &medias) const;
    /// Asks the view side to download media once more.
    void redownloadMedia(const QList<INxAbstractMedia *> &items);
    /// Has the resources of the shown folder loaded anew.
    void resetResourceLoader();
    /// Takes the place of the strategy before it; null for none.
    void setMediaItemStrategy(std::shared_ptr<INxMediaItemStrategy> strategy);

    // Files that were moved

    /// Asks what is to be done about media whose files are missing, and does it. False for an
    /// empty list.
    bool dealWithMissingFiles(const QList<INxAbstractMedia *> &items);
    /// Has the user choose a file for each of the media; each that fits is one undo step. The
    /// first file that is not chosen ends it. Answers how many were relinked. One run at a time.
    int relinkMedia(const QList<INxAbstractMedia *> &items);
    /// Lets the user choose a file for the media at `index` of the list that is, or was last, being
    /// relinked. Empty when none was chosen.
    [[nodiscard]] QString getRelinkMediaFile(int index);
    /// Whether a file may take the place of that media's file: it can be read, and is as long. If
    /// not, the user was told why.
    [[nodiscard]] bool checkRelinkMediaFile(int index, const QString &path);

    // Services of the engine; false, or nothing, where the engine does not have them

    /// Whether the proxies of media would fit on their disk. If not, the user was told.
    [[nodiscard]] bool checkFreeSpaceForProxy(const QList<INxAbstractMedia *> &items);
    bool createProxyFile(const QList<INxAbstractMedia *> &items);
    bool stopCreateProxyFile(const QList<INxAbstractMedia *> &items);
    bool beatDetection(const QList<INxAbstractMedia *> &items);
    /// Beats of the first media, ms from its start.
    [[nodiscard]] QList<qint64> getOneBeatInfo(const QList<INxAbstractMedia *> &items);
    /// Fills `points` with the first frames of the media's scenes.
    bool scenceDetect(INxAbstractMedia *item, QList<qint64> &points);

    /// Two videos, or a video and a sound.
    [[nodiscard]] static bool isAudioSyncEnabled(const QList<INxAbstractMedia *> &items);
    /// Whether both are long enough, and not too long, for the service.
    [[nodiscard]] bool isValidAudioSyncMediaLength(INxAbstractMediaItem *first,
                                                   INxAbstractMediaItem *second) const;
    /// Has two media put on the timeline, aligned by their sound.
    void startAudioSyn(const QList<INxAbstractMedia *> &items);

Q_SIGNALS:
    void sigRootFolderChanged();
    void sigSelectItemsChanged();
    void sigViewModeChanged();
    void sigSortByChanged();
    void sigGroupByChanged();
    void sigFilterChanged();
    void sigFilterTypeChanged();
    void sigFilterKeywordChanged();
    void sigFilterSimilarSearchChanged();
    void sigExitSearchrFolder();
    /// Served at once, by a direct connection: `medias` is read when the signal returns.
    void sigImportMedia(const NXMEDIALIBRARY::NxMediaImportParam &param,
                        QList<INxAbstractMediaItem *> &medias, bool bEventTrack);
    /// Served at once, by a direct connection: `mediaItem` is read when the signal returns.
    void sigAddCustomMediaItem(const NXMEDIALIBRARY::NxMediaAddCustomParam &param,
                               INxAbstractMediaItem *&mediaItem);
    void sigGotoFolder(INxFolderMedia *floder);
    void sigClearSelection();
    void sigSelectAll();
    void sigSelectItems(const QList<INxAbstractMedia *> &items);
    void sigRedownloadMedia(const QList<INxAbstractMedia *> &items);
    void sigSetSimilarSearchBar(const QString &thumbnailFile,
                                NXVBLMODEL::NxMediaCategoryType categoryType);

protected:
    NxMediaItemManagerPresenter(NxMediaItemManagerPresenterPrivate &dd, QObject *parent);

private:
    friend class NxMediaItemManagerPresenterPrivate;
    [[nodiscard]] NxMediaItemManagerPresenterPrivate *d_func() const;
};
