// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxMediaItemEventObserver.h>

#include <QAbstractItemModel>
#include <QVector>

#include <memory>
#include <vector>

class INxMediaItemManager;
class NMediaItemData;
class NxObserverConnector;
class NxResetScope;
class QTimer;

/// The media of one folder as a flat list for views: media items, group headers and tiles.
///
/// Rows carry their INxAbstractMedia as the index's internal pointer, and mediaItem() answers the
/// same; the only role is the tooltip. Every change of what stands in which row is a whole reset,
/// one for each event. The list is flat, and parents given to its functions are not looked at.
///
/// Media belong to the model library; headers and tiles to this model. When the folder dies the
/// model is empty. GUI thread only; nothing here touches a disk but mimeData(), which asks what is
/// known about the presence of files.
class NXMEDIALIBRARY_EXPORT NxMediaItemModel : public QAbstractItemModel,
                                               public INxMediaItemEventObserver
{
    Q_OBJECT
public:
    NxMediaItemModel(NXVBLMODEL::NxMediaCategoryType categoryType, QObject *parent);
    ~NxMediaItemModel() override;

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    /// Ten in the project's media, five in every other category.
    [[nodiscard]] int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    /// Made for every row and column; the pointer is null when the row is not there.
    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = QModelIndex()) const override;
    using QObject::parent;
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    /// The tooltip of the project's media and of audio effects; nothing else.
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    /// Headers and tiles can be neither selected, edited nor dragged.
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    /// A NxMediaItemMimeData with the media that can be used elsewhere: no headers, tiles,
    /// classifications, missing files or online clips that are not here. Never null.
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    bool event(QEvent *event) override;

    [[nodiscard]] NXVBLMODEL::NxMediaCategoryType categoryType() const { return m_categoryType; }

    /// Shows a folder, or none.
    void load(const INxFolderMedia *folder);
    /// No rows; the folder stays.
    void clear();
    /// The folder that is shown; null when there is none or it died.
    [[nodiscard]] INxFolderMedia *folder() const;
    [[nodiscard]] QList<INxAbstractMedia *> getItems() const;
    /// Null for a row that is not there.
    [[nodiscard]] INxAbstractMedia *mediaItem(int row) const;
    /// Where a media stands, ascending.
    [[nodiscard]] QList<int> rows(const INxAbstractMedia *item) const;
    /// The rows that take a whole line of a view, ascending: headers of groups and "View More"
    /// tiles. Costs as much as there are groups.
    [[nodiscard]] QVector<int> wholeLineRows() const;
    /// How many media are shown, those of folded groups among them; no headers and tiles.
    [[nodiscard]] int listedCount() const;

    void setSortBy(const NXMEDIALIBRARY::NxMediaItemViewSort &sort);
    [[nodiscard]] NXMEDIALIBRARY::NxMediaItemViewSort getSortBy() const;
    void setGroupBy(const NXMEDIALIBRARY::NxMediaItemViewGroup &group);
    [[nodiscard]] NXMEDIALIBRARY::NxMediaItemViewGroup getGroupBy() const;
    void setFilter(const NXMEDIALIBRARY::NxMediaItemViewFilter &filter);
    [[nodiscard]] NXMEDIALIBRARY::NxMediaItemViewFilter getFilter() const;
    /// True when rows stand in groups.
    [[nodiscard]] bool isGrouped() const;
    /// Takes effect with the next rows; off in the beginning.
    void setSortEnable(bool enable);
    [[nodiscard]] bool isSortEnable() const;
    /// Whether a folder is shown as the service orders it: sorting is then off.
    [[nodiscard]] static bool keepsServiceOrder(const INxFolderMedia *folder);
    void setKeepFolder(bool keep);
    [[nodiscard]] bool isKeepFolder() const;
    /// On in the beginning.
    void setFetchMoreEnable(bool enable);
    [[nodiscard]] bool isFetchMoreEnable() const;
    /// Items in a line of the view. With `rescale` a similar search keeps showing about as many
    /// items, in lines of the new length.
    void setItemCountPerLine(int count, bool rescale);
    [[nodiscard]] int itemCountPerLine() const;
    /// Lines of each pack that a similar search shows.
    [[nodiscard]] int similarLines() const;

    /// Folds or unfolds the group whose header stands in the row.
    void expandStateToggle(int row, bool expand);
    /// Shows two more lines of a similar search, or six.
    void viewMoreSimilarPackItem(bool large);
    void updateSimilarMediaItems();
    /// The headers' titles in the user's language of now. Resets nothing: the view repaints.
    void updateGroupByItemText();
    void saveRelocateIndex(int row);
    void removeAllRelocateIndex();
    [[nodiscard]] QList<int> getRelocateIndexs() const;

    /// Follows what happens to the manager's items; does nothing when it is followed already.
    void subscribeMediaItemManager(INxMediaItemManager *manager);
    void unSubscribeMediaItemManager();
    /// True for the shown folder and every folder inside it.
    [[nodiscard]] bool checkFolder(INxFolderMedia *folder) const;

    void onBeforeAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onAfterAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onBeforeRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onAfterRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onAfterMoveItemEvent(INxFolderMedia *from, INxFolderMedia *to,
                              INxAbstractMedia *item) override;
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

Q_SIGNALS:
    void sigFetchMoreStateChanged(INxFolderMedia::FolderFetchMoreState state);
    void sigDownloadFinished(INxAbstractMedia *item);
    void sigDownloadFailed(INxAbstractMedia *item);
    /// The stock provider delivers no more today.
    void siVCGDownloadLimit();
    /// A row is about to go, inside the reset that takes it out; the parent is invalid, and first
    /// and last are the row.
    void sigRemoveItem(const QModelIndex &parent, int first, int last);
    /// The shown folder, or one inside it, lists one more; inside the reset that shows it.
    void sigAfterAddItem(INxFolderMedia *folder, INxAbstractMedia *item);

private:
    friend class NxResetScope;
    /// An event whose end is awaited. The pointers tell it from others and are never followed.
    struct OpenChange
    {
        const INxFolderMedia *folder;
        const INxAbstractMedia *item;
        bool isClear; ///< All items go; else one comes.

        friend bool operator==(const OpenChange &a, const OpenChange &b)
        {
            return a.folder == b.folder && a.item == b.item && a.isClear == b.isClear;
        }
    };

    void beginChange();
    void endChange();
    [[nodiscard]] bool isOpen(const OpenChange &change) const;
    void openChange(const OpenChange &change);
    void closeChange(const OpenChange &change);
    void takeOut(INxAbstractMedia *item);
    void mediaDataChanged(INxAbstractMedia *item);
    void watchFolder();
    void reloadChanged(INxFolderMedia *folder);

    std::unique_ptr<NMediaItemData> m_data;
    bool m_fetchMoreEnable = true;
    const NXVBLMODEL::NxMediaCategoryType m_categoryType;
    std::vector<std::unique_ptr<NxObserverConnector>> m_connectors;

    int m_openResets = 0;
    std::vector<OpenChange> m_openChanges;
    const INxAbstractMedia *m_leaving = nullptr; // Never followed.
    bool m_hasChangedSince = false;
    QMetaObject::Connection m_folderDeath;
    QTimer *m_idle; // Owned by this; tells when caches have not been used for long.
};
