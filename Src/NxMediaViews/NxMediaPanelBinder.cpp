// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaPanelBinder.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaPanelBinder_p.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaImporter.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxWidgets/NMessageDialog.h>

#include <NxCore/NxFile.h>
#include <NxCore/NxUIView.h>

#include <QCoreApplication>
#include <QEvent>
#include <QScopedValueRollback>

using namespace NXMEDIALIBRARY;
using Items = NxMediaItemManagerPresenter;

namespace {

void disconnectAll(std::vector<QMetaObject::Connection> *connections)
{
    for (const QMetaObject::Connection &connection : *connections)
        QObject::disconnect(connection);
    connections->clear();
}

/// Known to be gone; a file that nobody has looked at yet counts as there.
bool isMissing(const INxAbstractMedia *media)
{
    const auto *item = dynamic_cast<const INxAbstractMediaItem *>(media);
    return item && !item->isResource() && !NxFile::knownToExist(item->filePath()).value_or(true);
}

} // namespace

NxMediaPanelBinderPrivate::NxMediaPanelBinderPrivate(NxMediaPanelBinder *binder,
                                                     NxUIView *panelView,
                                                     NxMediaItemView *mediaView,
                                                     NxFolderTreeView *folderTree)
    : q(binder),
      panel(panelView),
      view(mediaView),
      tree(folderTree)
{
}

void NxMediaPanelBinderPrivate::connectView()
{
    using View = NxMediaItemView;
    QObject::connect(view, &View::sigSelectedMediaChanged, q, [this] { tellSelection(); });
    QObject::connect(view, &View::sigSortRequested, q,
                     [this](NxMediaItemViewSortBy key) { sortBy(key); });
    QObject::connect(view, &View::sigZoomWanted, q, [this](int steps) { zoom(steps); });
    QObject::connect(view, &View::sigMediaActivated, q,
                     [this](INxAbstractMedia *media) { activate(media); });
    QObject::connect(view, &View::sigMediaItemEvent, q,
                     [this](int usage, NxMediaItemEventCondition condition,
                            const QModelIndex &index) { serveEvent(usage, condition, index); });
    QObject::connect(view, &View::sigRenameWanted, q,
                     [this](INxAbstractMedia *media, const QString &name) { rename(media, name); });
    QObject::connect(view, &View::sigImportWanted, q, &NxMediaPanelBinder::sigImportDialogWanted);
    QObject::connect(view, &View::sigFilesDropped, q, [this](const QStringList &paths) {
        Q_EMIT q->sigImportWanted(nullptr, paths);
    });
}

void NxMediaPanelBinderPrivate::connectTree()
{
    if (tree)
        QObject::connect(tree, &NxFolderTreeView::sigFilesDropped, q,
                         &NxMediaPanelBinder::sigImportWanted);
}

// Imports are asked for before the category is shown that they go to.
void NxMediaPanelBinderPrivate::connectImports()
{
    for (int code = NXVBLMODEL::mctMedia; code < NXVBLMODEL::MediaCategoryCount; ++code) {
        NxMediaCategoryPresenter *category =
            library->getMediaCategoryPresenter(NXVBLMODEL::NxMediaCategoryType(code));
        Items *into = category ? category->mediaItemManagerPresenter() : nullptr;
        if (!into)
            continue;
        libraryConnections.push_back(QObject::connect(
            into, &Items::sigImportMedia, q,
            [this, into](const NxMediaImportParam &param, QList<INxAbstractMediaItem *> &medias,
                         bool) { importNow(into, param, &medias); }));
    }
}

void NxMediaPanelBinderPrivate::importNow(Items *into, const NxMediaImportParam &param,
                                          QList<INxAbstractMediaItem *> *medias) const
{
    NxMediaCategoryPresenter *category = library->getMediaCategoryPresenter(into->categoryType());
    INxMediaManager *manager = category ? category->mediaManager() : nullptr;
    INxMediaImporter *importer = manager ? manager->importer() : nullptr;
    if (!importer)
        return;
    INxFolderMedia *folder = param.folder ? param.folder : into->folder();
    if (!folder)
        folder = manager->folderManager()->folder(NXVBLMODEL::fidRoot);
    *medias += importer->addNow(folder, param.files, nullptr);
}

void NxMediaPanelBinderPrivate::release()
{
    releaseCategory();
    disconnectAll(&libraryConnections);
    library = nullptr;
}

void NxMediaPanelBinderPrivate::releaseCategory()
{
    disconnectAll(&categoryConnections);
    if (items)
        items->setView(nullptr);
    items = nullptr;
    wanted = nullptr;
    if (tree)
        tree->setPresenter(nullptr);
    if (view)
        view->setModel(nullptr);
    model.reset();
}

void NxMediaPanelBinderPrivate::showCategory()
{
    releaseCategory();
    NxMediaCategoryPresenter *category =
        library && view ? library->currentMediaCategoryPresenter() : nullptr;
    items = category ? category->mediaItemManagerPresenter() : nullptr;
    if (items) {
        const QScopedValueRollback<bool> telling(isTelling, true); // It is as it was left.
        const QList<INxAbstractMedia *> selected = items->selectedItems();
        items->setView(panel);
        model = std::make_unique<NxMediaItemModel>(items->categoryType(), nullptr);
        model->setSortBy(items->getSortBy());
        model->setGroupBy(items->getGroupBy());
        model->setFilter(items->getFilter());
        model->subscribeMediaItemManager(items->itemManager());
        view->setModel(model.get());
        view->setViewMode(items->viewMode());
        view->setSort(items->getSortBy());
        connectItems();
        if (category->folderManagerPresenter())
            category->folderManagerPresenter()->setView(panel);
        if (tree)
            tree->setPresenter(category);
        loadFolder();
        view->selectMedia(selected);
    }
    Q_EMIT q->sigShownChanged();
}

void NxMediaPanelBinderPrivate::connectItems()
{
    Items *shown = items;
    NxMediaItemModel *rows = model.get();
    keep(QObject::connect(shown, &Items::sigRootFolderChanged, q, [this] { loadFolder(); }));
    keep(QObject::connect(shown, &Items::sigViewModeChanged, q,
                          [this] { view->setViewMode(items->viewMode()); }));
    keep(QObject::connect(shown, &Items::sigSortByChanged, q, [this] {
        model->setSortBy(items->getSortBy());
        view->setSort(items->getSortBy());
    }));
    keep(QObject::connect(shown, &Items::sigGroupByChanged, q,
                          [this] { model->setGroupBy(items->getGroupBy()); }));
    keep(QObject::connect(shown, &Items::sigFilterChanged, q, [this] { applyFilter(); }));
    keep(QObject::connect(shown, &Items::sigFilterKeywordChanged, q, [this] { applyFilter(); }));
    keep(QObject::connect(shown, &Items::sigExitSearchrFolder, q,
                          [this] { items->clearSimilarSearch(); }));
    keep(QObject::connect(
        shown, &Items::sigSelectItems, q,
        [this](const QList<INxAbstractMedia *> &medias) { view->selectMedia(medias); }));
    keep(QObject::connect(shown, &Items::sigSelectAll, q, [this] { view->selectAll(); }));
    keep(QObject::connect(shown, &Items::sigClearSelection, q, [this] { view->clearSelection(); }));
    keep(QObject::connect(rows, &QAbstractItemModel::modelReset, q, [this] {
        showWanted();
        Q_EMIT q->sigRowsChanged();
    }));
}

// The filter that a search begins with may be the model's already.
void NxMediaPanelBinderPrivate::applyFilter()
{
    if (model->getFilter() != items->getFilter())
        model->setFilter(items->getFilter());
}

// A search changes folder and filter with the same key: all media are gone through once for both.
// Another filter of the same folder makes its rows anew already; a search for likes does not.
void NxMediaPanelBinderPrivate::loadFolder()
{
    INxFolderMedia *folder = items->folder();
    const bool isFiltered = model->getFilter() != items->getFilter();
    const bool isOther = model->folder() != folder;
    if (isFiltered && isOther)
        model->load(nullptr);
    model->setSortEnable(!NxMediaItemModel::keepsServiceOrder(folder));
    applyFilter();
    const bool hasRows = isFiltered && !isOther && items->getFilter().searchMode != esmSimilar;
    if (!hasRows)
        model->load(folder);
    Q_EMIT q->sigShownChanged();
}

void NxMediaPanelBinderPrivate::showWanted()
{
    INxAbstractMedia *media = wanted.get();
    if (!media || model->rows(media).isEmpty())
        return;
    wanted = nullptr;
    view->selectMedia({media});
    view->showMedia(media);
}

void NxMediaPanelBinderPrivate::tellSelection()
{
    if (!items || isTelling)
        return;
    const QScopedValueRollback<bool> telling(isTelling, true);
    items->setSelectedItems(view->selectedMedia());
    Q_EMIT q->sigSelectionChanged();
}

void NxMediaPanelBinderPrivate::activate(INxAbstractMedia *media)
{
    if (!items)
        return;
    if (!isMissing(media)) {
        Q_EMIT q->sigOpenWanted(media);
        return;
    }
    QList<INxAbstractMedia *> missing;
    const QList<INxAbstractMedia *> selected = q->selection();
    for (INxAbstractMedia *one : selected) {
        if (isMissing(one))
            missing.append(one);
    }
    items->dealWithMissingFiles(missing.contains(media) ? missing
                                                        : QList<INxAbstractMedia *>{media});
}

void NxMediaPanelBinderPrivate::serveEvent(int usageEvent, NxMediaItemEventCondition condition,
                                           const QModelIndex &index)
{
    if (usageEvent == mueHoveredOnly && condition == mecRelease && mediaAt(index))
        Q_EMIT q->sigAddWanted(mediaAt(index));
}

void NxMediaPanelBinderPrivate::sortBy(NxMediaItemViewSortBy key)
{
    if (!items)
        return;
    NxMediaItemViewSort sort{key, soASC};
    const NxMediaItemViewSort before = items->getSortBy();
    if (before.sortBy == key && before.order == soASC)
        sort.order = soDESC;
    items->setSortBy(sort);
}

void NxMediaPanelBinderPrivate::zoom(int steps)
{
    if (items)
        items->setViewMode(
            NxMediaItemViewMode(qBound<int>(vmList, items->viewMode() + steps, vmLargeThumbnail)));
}

void NxMediaPanelBinderPrivate::rename(INxAbstractMedia *media, const QString &name)
{
    if (!items || !media || items->renameMediaItem(media, name))
        return;
    NMessageDialog::Infomation(panel ? panel->widget() : nullptr, {},
                               NxMediaPanelBinder::tr("\"%1\" cannot be renamed to \"%2\".")
                                   .arg(media->name(), name.trimmed()));
}

void NxMediaPanelBinderPrivate::retranslate()
{
    if (!model)
        return;
    model->updateGroupByItemText();
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(model.get(), &change);
    if (view)
        view->viewport()->update();
}

NxMediaPanelBinder::NxMediaPanelBinder(NxUIView *panel, NxMediaItemView *view,
                                       NxFolderTreeView *tree, QObject *parent)
    : QObject(parent),
      d(std::make_unique<NxMediaPanelBinderPrivate>(this, panel, view, tree))
{
    d->connectView();
    d->connectTree();
    QCoreApplication::instance()->installEventFilter(this);
}

NxMediaPanelBinder::~NxMediaPanelBinder()
{
    blockSignals(true);
    d->release();
}

void NxMediaPanelBinder::setPresenter(NxMediaLibraryPresenter *presenter)
{
    if (presenter == d->library)
        return;
    d->release();
    d->library = presenter;
    if (presenter) {
        d->connectImports();
        d->libraryConnections.push_back(
            connect(presenter, &NxMediaLibraryPresenter::sigCurrentCategoryTypeChanged, this,
                    [this] { d->showCategory(); }));
    }
    d->showCategory();
}

NxMediaLibraryPresenter *NxMediaPanelBinder::presenter() const
{
    return d->library;
}

NxMediaCategoryPresenter *NxMediaPanelBinder::category() const
{
    return d->library && d->items ? d->library->currentMediaCategoryPresenter() : nullptr;
}

NxMediaItemManagerPresenter *NxMediaPanelBinder::items() const
{
    return d->items;
}

NxFolderMediaManagerPresenter *NxMediaPanelBinder::folders() const
{
    NxMediaCategoryPresenter *shown = category();
    return shown ? shown->folderManagerPresenter() : nullptr;
}

NxMediaItemModel *NxMediaPanelBinder::model() const
{
    return d->model.get();
}

int NxMediaPanelBinder::listedCount() const
{
    return d->model ? d->model->listedCount() : 0;
}

QList<INxAbstractMedia *> NxMediaPanelBinder::selection() const
{
    const QList<INxAbstractMedia *> selected =
        d->view ? d->view->selectedMedia() : QList<INxAbstractMedia *>();
    if (d->items)
        d->items->setSelectedItems(selected);
    return selected;
}

void NxMediaPanelBinder::removeSelection()
{
    const QList<INxAbstractMedia *> selected = selection();
    if (d->items && !selected.isEmpty())
        d->items->removeMediaItems(d->items->folder(), selected);
}

void NxMediaPanelBinder::clearFilters()
{
    if (!d->items)
        return;
    d->items->clearSimilarSearch();
    d->items->setFilterKeyword({}, esmKeyword);
    d->items->setFilterType(mtfAll);
}

void NxMediaPanelBinder::showInFolder(INxAbstractMedia *media)
{
    auto *item = dynamic_cast<INxAbstractMediaItem *>(media);
    INxFolderMedia *folder = item ? item->parentFolder() : nullptr;
    if (!d->items || !folder)
        return;
    clearFilters();
    d->wanted = media;
    d->items->gotoFolder(folder);
    d->showWanted(); // It may have been shown all the time.
}

bool NxMediaPanelBinder::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && watched == QCoreApplication::instance())
        d->retranslate();
    return QObject::eventFilter(watched, event);
}
