// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemViewTypes.h>
#include <NxMediaLibrary/delegate/NxMediaItemEventTypes.h>
#include <NxVBLModel/NxMediaRef.h>

#include <QMetaObject>
#include <QPointer>

#include <memory>
#include <vector>

class NxFolderTreeView;
class NxMediaItemManagerPresenter;
class NxMediaItemModel;
class NxMediaItemView;
class NxMediaLibraryPresenter;
class NxMediaPanelBinder;
class NxUIView;
class QModelIndex;

/// What a NxMediaPanelBinder is connected to.
class NxMediaPanelBinderPrivate
{
public:
    NxMediaPanelBinderPrivate(NxMediaPanelBinder *binder, NxUIView *panelView,
                              NxMediaItemView *mediaView, NxFolderTreeView *folderTree);

    void connectView();
    void connectTree();
    void connectImports();
    void release();
    void releaseCategory();
    void showCategory();
    void connectItems();
    void loadFolder();
    void applyFilter();
    void showWanted();
    void tellSelection();
    void activate(INxAbstractMedia *media);
    void serveEvent(int usageEvent, NxMediaItemEventCondition condition, const QModelIndex &index);
    void sortBy(NXMEDIALIBRARY::NxMediaItemViewSortBy key);
    void zoom(int steps);
    void rename(INxAbstractMedia *media, const QString &name);
    void importNow(NxMediaItemManagerPresenter *into,
                   const NXMEDIALIBRARY::NxMediaImportParam &param,
                   QList<INxAbstractMediaItem *> *medias) const;
    void retranslate();
    void keep(const QMetaObject::Connection &connection)
    {
        categoryConnections.push_back(connection);
    }

    NxMediaPanelBinder *const q;
    NxUIView *const panel; // Not owned, as the next two.
    const QPointer<NxMediaItemView> view;
    const QPointer<NxFolderTreeView> tree;
    QPointer<NxMediaLibraryPresenter> library; // Not owned, as the next one.
    QPointer<NxMediaItemManagerPresenter> items;
    std::unique_ptr<NxMediaItemModel> model;
    std::vector<QMetaObject::Connection> libraryConnections;
    std::vector<QMetaObject::Connection> categoryConnections;
    NxMediaRef wanted; // To be shown once its folder is.
    bool isTelling = false;
};
