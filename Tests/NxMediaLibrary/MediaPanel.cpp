// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MediaPanel.h"

#include <NxCore/INxUndoStack.h>
#include <NxCore/NxFile.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSelectionModel.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxMediaFolderTreeDelegate.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxGroupMedia.h>
#include <NxVBLModel/INxMediaImporter.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxProjectManager.h>
#include <NxVBLModel/NxMediaIndex.h>

#include <QHBoxLayout>
#include <QShortcut>
#include <QTreeView>

#include <functional>

#include "PanelList.h"

using Folders = NxFolderMediaManagerPresenter;
using Items = NxMediaItemManagerPresenter;

namespace {

INxUndoStack *history()
{
    INxProject *project = INxProjectManager::getInstance()->currentProject();
    return project ? project->undoStack() : nullptr;
}

} // namespace

MediaPanel::MediaPanel(NxMediaLibraryPresenter *library)
    : m_library(library),
      m_list(new PanelList(this)),
      m_tree(new QTreeView(this)),
      m_treeModel(new NxMediaTreeModel(this))
{
    layOut();
    serveImports();
    serveKeys();
    connect(m_library, &NxMediaLibraryPresenter::sigCurrentCategoryTypeChanged, this,
            &MediaPanel::showCategory);
}

MediaPanel::~MediaPanel()
{
    letGo();
}

void MediaPanel::letGo()
{
    if (!m_library)
        return;
    items()->setView(nullptr);
    m_library->disconnect(this);
    folders()->disconnect(this);
    m_treeModel->unSubscribeFoderManager();
    m_treeModel->clear();
    m_list->setModel(nullptr);
    m_selection = nullptr;
    m_model.reset();
    m_library = nullptr;
}

NxMediaCategoryPresenter *MediaPanel::category() const
{
    return m_library->currentMediaCategoryPresenter();
}

Items *MediaPanel::items() const
{
    return category()->mediaItemManagerPresenter();
}

Folders *MediaPanel::folders() const
{
    return category()->folderManagerPresenter();
}

void MediaPanel::layOut()
{
    auto *row = new QHBoxLayout(this);
    row->addWidget(m_tree);
    row->addWidget(m_list);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setEditTriggers(QAbstractItemView::EditKeyPressed);
    connect(m_list->delegate(), &NxMediaItemDelegate::sigMediaItemRenameEvent, this,
            [this](const QModelIndex &index, const QString &name) {
                items()->renameMediaItem(mediaAt(index), name);
            });
    connect(m_list->delegate(), &NxMediaItemDelegate::sigMediaItemEvent, this,
            &MediaPanel::serveClick);
    connect(m_list, &QListView::doubleClicked, this, &MediaPanel::askAboutMissing);
    m_tree->setModel(m_treeModel);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->setItemDelegate(new NxMediaFolderTreeDelegate(this));
    connect(m_tree, &QTreeView::clicked, this, [this](const QModelIndex &index) {
        const QPointer<INxFolderMedia> picked(folderAt(index));
        items()->clearSimilarSearch();
        folders()->setCurrentFolder(picked);
    });
    resize(800, 600);
}

// Imports are asked for before the category is shown that they go to.
void MediaPanel::serveImports()
{
    using namespace NXMEDIALIBRARY;
    for (int code = NXVBLMODEL::mctMedia; code < NXVBLMODEL::MediaCategoryCount; ++code) {
        NxMediaCategoryPresenter *one =
            m_library->getMediaCategoryPresenter(NXVBLMODEL::NxMediaCategoryType(code));
        INxMediaImporter *importer = one->mediaManager()->importer();
        Items *into = one->mediaItemManagerPresenter();
        if (!importer)
            continue;
        connect(into, &Items::sigImportMedia, this,
                [importer, into](const NxMediaImportParam &param,
                                 QList<INxAbstractMediaItem *> &medias, bool) {
                    INxFolderMedia *folder = param.folder ? param.folder : into->folder();
                    medias += importer->addNow(folder, param.files, nullptr);
                });
    }
}

void MediaPanel::serveKeys()
{
    const auto on = [this](QWidget *widget, const QKeySequence &keys, Qt::ShortcutContext context,
                           const std::function<void()> &deed) {
        auto *shortcut = new QShortcut(keys, widget);
        shortcut->setContext(context);
        connect(shortcut, &QShortcut::activated, this, deed);
    };
    on(m_list, QKeySequence::Delete, Qt::WidgetShortcut,
       [this] { items()->removeMediaItems(items()->folder(), items()->selectedItems()); });
    on(m_tree, QKeySequence::Delete, Qt::WidgetShortcut,
       [this] { folders()->removeFolder(folders()->currentFolder()); });
    on(this, QKeySequence::Undo, Qt::WindowShortcut, [] { history()->undo(); });
    on(this, QKeySequence::Redo, Qt::WindowShortcut, [] { history()->redo(); });
}

void MediaPanel::showCategory()
{
    Items *shown = items();
    INxMediaManager *manager = category()->mediaManager();
    auto model = std::make_unique<NxMediaItemModel>(manager->categoryType(), nullptr);
    model->subscribeMediaItemManager(manager->itemManager());
    model->setSortBy(shown->getSortBy());
    model->setGroupBy(shown->getGroupBy());
    model->setFilter(shown->getFilter());
    m_selection = new NxMediaItemSelectionModel(model.get(), model.get());
    m_list->setModel(model.get());
    m_list->setSelectionModel(m_selection);
    m_model = std::move(model); // What was connected to the one before ends with it.
    shown->setView(this);
    followView();
    m_treeModel->unSubscribeFoderManager();
    m_treeModel->subscribeFoderManager(manager->folderManager());
    m_treeModel->load(manager->folderManager()->rootFolder());
    followFolders();
    if (!folders()->currentFolder())
        folders()->setCurrentFolder(manager->folderManager()->folder(NXVBLMODEL::fidRoot));
    m_tree->expandAll();
    markCurrentFolder();
    showFolder();
}

void MediaPanel::followView()
{
    Items *shown = items();
    NxMediaItemModel *model = m_model.get();
    connect(shown, &Items::sigRootFolderChanged, model, [this] { showFolder(); });
    connect(shown, &Items::sigSortByChanged, model, [=] { model->setSortBy(shown->getSortBy()); });
    connect(shown, &Items::sigGroupByChanged, model,
            [=] { model->setGroupBy(shown->getGroupBy()); });
    connect(shown, &Items::sigFilterChanged, model, [=] { model->setFilter(shown->getFilter()); });
    connect(shown, &Items::sigFilterKeywordChanged, model,
            [=] { model->setFilter(shown->getFilter()); });
    connect(shown, &Items::sigSelectItems, model,
            [this](const QList<INxAbstractMedia *> &medias) { selectRows(medias); });
    connect(shown, &Items::sigSelectAll, model, [this] { m_list->selectAll(); });
    connect(shown, &Items::sigClearSelection, model, [this] { m_list->clearSelection(); });
    connect(m_selection, &QItemSelectionModel::selectionChanged, model,
            [this] { tellSelection(); });
    // A reset takes the view's selection without a word; what is not shown any more leaves it.
    connect(model, &QAbstractItemModel::modelReset, model, [this, shown] {
        selectRows(shown->selectedItems());
        tellSelection();
    });
}

void MediaPanel::followFolders()
{
    connect(folders(), &Folders::sigCurrentFolderChanged, m_model.get(),
            [this] { markCurrentFolder(); });
}

void MediaPanel::markCurrentFolder()
{
    m_tree->setCurrentIndex(m_treeModel->findIndex(folders()->currentFolder()));
}

void MediaPanel::showFolder()
{
    INxFolderMedia *folder = items()->folder();
    m_model->setSortEnable(!NxMediaItemModel::keepsServiceOrder(folder));
    m_model->load(folder);
}

void MediaPanel::selectRows(const QList<INxAbstractMedia *> &medias)
{
    QItemSelection rows;
    for (const INxAbstractMedia *media : medias) {
        const QList<int> standing = m_model->rows(media);
        for (const int row : standing)
            rows.select(m_model->index(row, 0), m_model->index(row, 0));
    }
    m_selection->select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void MediaPanel::tellSelection()
{
    items()->setSelectedItems(m_selection->selectedItems());
}

void MediaPanel::serveClick(int usage, NxMediaItemEventCondition, const QModelIndex &index)
{
    const auto *group = dynamic_cast<const INxGroupMedia *>(mediaAt(index));
    if (usage == mueToggleGroup && group)
        m_model->expandStateToggle(index.row(), !group->isExpanded());
}

void MediaPanel::askAboutMissing(const QModelIndex &index)
{
    const auto *item = dynamic_cast<INxAbstractMediaItem *>(mediaAt(index));
    if (item && !item->isResource() && !NxFile::exists(item->filePath()))
        items()->dealWithMissingFiles(items()->selectedItems());
}
