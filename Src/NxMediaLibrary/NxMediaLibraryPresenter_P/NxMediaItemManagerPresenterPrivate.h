// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NMediaRemoveDecision.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxBaseMediaPresenterPrivate.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxMediaItemEventObserver.h>
#include <NxVBLModel/NxMediaRef.h>
#include <NxVBLModel/NxObserverConnector.h>

#include <QMap>
#include <QPointer>
#include <QVector>

#include <functional>
#include <memory>

class INxMediaItemManager;
class INxMediaItemStrategy;
class NxMediaItemManagerPresenter;
class NxTimelineAudioSynMessage;
struct NMessageDialogInfo;

class NXMEDIALIBRARY_TEST_EXPORT NxMediaItemManagerPresenterPrivate
    : public NxBaseMediaPresenterPrivate,
      public INxMediaItemEventObserver
{
public:
    explicit NxMediaItemManagerPresenterPrivate(INxMediaItemManager *manager);
    ~NxMediaItemManagerPresenterPrivate() override;

    // What happens when the shown folder changes; where items come from a service, they are asked
    // for here.
    virtual void reload();
    virtual void searchFolderEntered();
    virtual void treeFolderEntered();
    virtual void rootChanged();

    /// Null once it died.
    [[nodiscard]] INxMediaItemManager *manager() const;
    [[nodiscard]] NXVBLMODEL::NxMediaCategoryType category() const;

    /// Goes over to the filter that the user last had in a stock folder, or to a fresh one.
    void changeFolderFilter(INxFolderMedia *from, INxFolderMedia *to);
    /// Sets the type filter of a record, and what the stock provider calls it.
    static void setTypeOf(NXMEDIALIBRARY::NxMediaItemViewFilter *filter,
                          NXMEDIALIBRARY::NxMediaTypeFilter type);
    /// Takes media out of the selection, with one announcement.
    void deselect(const QList<INxAbstractMedia *> &medias);

    /// Asks as often as the media, and where they are used, make it necessary.
    [[nodiscard]] NMediaRemoveDecision confirmRemoval(INxFolderMedia *folder,
                                                      const QList<INxAbstractMedia *> &medias);
    bool removeMediaItems(INxFolderMedia *folder, const QList<INxAbstractMedia *> &medias);
    /// Without a question, and without a look at timelines.
    void deleteMissing(const QList<INxAbstractMedia *> &medias);
    /// One undo step. False when the project refused, which the user was told.
    bool relinkOne(INxAbstractMedia *media, const QString &path);
    /// Asks whether the video's own sound is to be muted, and puts the sound first. False when the
    /// user chose neither, or what was to be aligned is gone.
    bool askMute(NxTimelineAudioSynMessage *message);
    /// The living media of a list that was kept while the user was asked.
    [[nodiscard]] static QList<INxAbstractMedia *> living(const QVector<NxMediaRef> &medias);
    [[nodiscard]] static QVector<NxMediaRef> watched(const QList<INxAbstractMedia *> &medias);

    void onAfterAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onRenameItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onBeforeRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onBeforeClearItemsEvent(INxFolderMedia *folder) override;

    INxMediaItemManager *itemManager = nullptr; // Not owned.
    QPointer<INxFolderMedia> rootFolder;
    QPointer<INxFolderMedia> treeSelectedFolder;
    QList<INxAbstractMedia *> selectedItems; // Not owned; what is removed leaves it.
    NXMEDIALIBRARY::NxMediaItemViewMode viewMode = NXMEDIALIBRARY::vmLargeThumbnail;
    NXMEDIALIBRARY::NxMediaItemViewGroup group;
    NXMEDIALIBRARY::NxMediaItemViewSort sort;
    NXMEDIALIBRARY::NxMediaItemViewFilter filter;
    std::unique_ptr<NxObserverConnector> connector;
    std::shared_ptr<INxMediaItemStrategy> strategy;

    /// A filter, and the folder that it was last used in.
    struct FolderFilter
    {
        QPointer<INxFolderMedia> folder; // Addresses are used again.
        NXMEDIALIBRARY::NxMediaItemViewFilter filter;
    };
    QMap<INxFolderMedia *, FolderFilter> folderFilters; // Of the stock provider's folders.

    QVector<NxMediaRef> relinking; // What is, or was last, being relinked.
    bool isRelinking = false;
    QString relinkFolder; // Where the next file is looked for.

private:
    [[nodiscard]] NxMediaItemManagerPresenter *q() const;
    void refreshListing();
    [[nodiscard]] bool canStandOnTimeline(INxFolderMedia *folder) const;
    [[nodiscard]] static bool isAnyUsed(const QList<INxAbstractMedia *> &medias);
    [[nodiscard]] bool askDelete(NMessageDialogInfo info) const;
    [[nodiscard]] bool askOrdinaryDelete() const;
    /// `deselects` tells which of the selected media leave the selection.
    void deselectIf(const std::function<bool(INxAbstractMedia *)> &deselects);
    [[nodiscard]] bool isShown(INxFolderMedia *folder) const;
    /// Favourites are guests: whether they come or go changes nothing in a list that shows their
    /// home.
    [[nodiscard]] bool isGuestElsewhere(INxFolderMedia *folder, const INxAbstractMedia *item) const;
    /// Whether an undo or redo runs; at its end endReplay() is called.
    [[nodiscard]] bool watchesReplay();
    void endReplay();
    void selectWhatCameBack();

    std::weak_ptr<void> m_managerLife;
    QVector<NxMediaRef> m_cameBack; // In the undo or redo that runs.
    bool m_isRenamed = false; // Something was, in it.
    QMetaObject::Connection m_replayEnd;
};
