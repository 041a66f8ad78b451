// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxLifeToken.h>
#include <NxVBLModel/NxMediaTypes.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>
#include <QString>

class INxAbstractMedia;
class INxAbstractMediaItem;
class INxFolderMedia;
class INxMediaItemEventObserver;
class INxMediaManager;
struct ResourceLoadReplyInfo;

/// The items of one category.
///
/// Every change is announced item by item: the "before add" while the folder does not list the
/// item yet, the "before remove" while it still lives, each followed by its "after", on the GUI
/// thread. Changes are undoable. A call that changes nothing leaves no undo step.
class NXVBLMODEL_EXPORT INxMediaItemManager
{
public:
    virtual ~INxMediaItemManager();

    /// NXVBLMODEL::mctNone by default.
    [[nodiscard]] virtual NXVBLMODEL::NxMediaCategoryType categoryType() const;
    /// False when the observer is null or registered already.
    virtual bool registerObserver(INxMediaItemEventObserver *observer) = 0;
    virtual void unregisterObserver(INxMediaItemEventObserver *observer) = 0;

    /// Adds to the category's first folder that takes media.
    virtual bool addMediaItems(const QList<INxAbstractMedia *> &items);
    virtual bool addMediaItems(INxFolderMedia *folder, const QList<INxAbstractMedia *> &items);
    /// Removed items may die with the event loop's next turn; an undo brings the same ones back.
    virtual bool removeMediaItems(INxFolderMedia *folder, const QList<INxAbstractMedia *> &items);
    /// Moves items to the end of another folder. `from` may be null: wherever they are.
    virtual bool moveMediaItems(INxFolderMedia *from, INxFolderMedia *to,
                                const QList<INxAbstractMedia *> &items);
    /// False when refused (a name that is empty when trimmed, or too long).
    virtual bool renameMediaItem(INxAbstractMedia *item, const QString &name);
    virtual bool setFavourite(INxAbstractMedia *item, bool favourite);

    /// The folder whose contents are listed at the moment; may be null.
    [[nodiscard]] virtual INxFolderMedia *currentRoot() const;
    /// Makes a folder the current root, and asks its service, if it has one, for its contents anew.
    /// What then changes is announced; of what is always up to date nothing is.
    virtual void refresh(INxFolderMedia *folder);
    virtual void resetResourceLoader(INxFolderMedia *folder);

    /// Replaces the file behind a media, which keeps its identity. False when refused.
    virtual bool relinkMedia(INxAbstractMedia *item, const QString &path);
    /// Hands a service's reply on to the items.
    virtual void onResourceReply(const ResourceLoadReplyInfo *reply);
    [[nodiscard]] virtual INxMediaManager *mediaManager() const;
    virtual void removeDownloadRecords(INxFolderMedia *folder,
                                       const QList<INxAbstractMediaItem *> &items);
    /// Length of a file: frames at its own rate, sound in hundredths of a second; -1 when the
    /// file cannot be read.
    [[nodiscard]] virtual qint64 readDuration(const QString &path) const;

    /// Expires when the manager dies; what NxObserverConnectorT watches.
    [[nodiscard]] std::weak_ptr<void> lifeToken() const { return m_life.watch(); }

private:
    NxLifeToken m_life;
};
