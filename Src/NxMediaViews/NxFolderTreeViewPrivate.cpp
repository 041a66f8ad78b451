// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFolderTreeViewPrivate_p.h"

#include "NxFolderRows_p.h"

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaFolderTreeDelegate.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxProjectManager.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxWidgets/NxSkinStyle.h>

#include <iterator>

using namespace NXVBLMODEL;

NxFolderTreeViewPrivate::NxFolderTreeViewPrivate(NxFolderTreeView *view)
    : drop(view),
      q(view),
      m_model(new NxFolderRows(view))
{
    auto *delegate = new NxMediaFolderTreeDelegate(q);
    q->setItemDelegate(delegate);
    q->setModel(m_model);
    followModel();
    QObject::connect(
        delegate, &NxFolderTreeDelegate::sigFolderRenameEvent, q,
        [this](const QModelIndex &index, const QString &name) { rename(folderAt(index), name); });
    QObject::connect(q, &QTreeView::clicked, q,
                     [this](const QModelIndex &index) { pick(folderAt(index)); });
    drop.filesDropped = [this](INxFolderMedia *folder, const QStringList &paths) {
        Q_EMIT q->sigFilesDropped(folder, paths);
    };
    drop.refused = [this](const QString &text) { tellLater(text); };
    NxSkinStyle::instance()->Attach(this);
    wear();
}

NxFolderTreeViewPrivate::~NxFolderTreeViewPrivate()
{
    NxSkinStyle::instance()->Detach(this);
    q->itemDelegate()->disconnect(q);
    m_model->disconnect(q);
    unfollowPresenter();
}

// After the view's own connections: each time it has taken in what happened.
void NxFolderTreeViewPrivate::followModel()
{
    using Model = QAbstractItemModel;
    QObject::connect(m_model, &Model::modelAboutToBeReset, q, [this] { noteExpandedBelow({}); });
    QObject::connect(m_model, &Model::modelReset, q, [this] {
        restoreExpandedBelow({});
        markCurrentFolder();
    });
    QObject::connect(m_model, &Model::rowsAboutToBeRemoved, q,
                     [this](const QModelIndex &parent, int first, int last) {
                         for (int row = first; row <= last; ++row)
                             noteExpanded(m_model->index(row, 0, parent));
                     });
    QObject::connect(m_model, &Model::rowsRemoved, q, [this] { markCurrentFolder(); });
    QObject::connect(
        m_model, &Model::rowsInserted, q,
        [this](const QModelIndex &parent, int first, int last) { rowsCame(parent, first, last); });
}

void NxFolderTreeViewPrivate::setPresenter(NxMediaCategoryPresenter *wanted)
{
    if (presenter == wanted && wanted)
        return;
    letGo();
    presenter = wanted;
    drop.setPresenter(wanted);
    if (wanted)
        followPresenter();
}

void NxFolderTreeViewPrivate::letGo()
{
    unfollowPresenter();
    presenter.clear();
    m_items.reset();
    m_model->unSubscribeFoderManager();
    m_model->clear(); // Writes down what is unfolded, unless the folders died.
}

void NxFolderTreeViewPrivate::unfollowPresenter()
{
    if (!presenter)
        return;
    folders()->disconnect(q);
    presenter->disconnect(q);
}

void NxFolderTreeViewPrivate::followPresenter()
{
    const INxMediaManager *manager = presenter->mediaManager();
    m_category = manager ? manager->categoryType() : mctNone;
    QObject::connect(presenter, &QObject::destroyed, q, [this] { letGo(); });
    QObject::connect(folders(), &NxFolderMediaManagerPresenter::sigCurrentFolderChanged, q,
                     [this] { markCurrentFolder(); });
    INxFolderMediaManager *folderManager = folders()->folderManager();
    if (!folderManager)
        return;
    m_items =
        std::make_unique<NxObserverConnectorT<INxMediaItemManager, INxMediaItemEventObserver>>(
            presenter->mediaItemManagerPresenter()->itemManager(), this);
    INxFolderMedia *root = folderManager->rootFolder();
    if (root && !m_expanded.contains(m_category)) {
        const QList<INxFolderMedia *> sections = root->childFolders();
        for (const INxFolderMedia *section : sections)
            m_expanded[m_category].insert(section->folderId());
    }
    m_model->subscribeFoderManager(folderManager);
    m_model->load(root);
    if (!currentFolder())
        folders()->setCurrentFolder(folderManager->folder(fidRoot));
}

NxFolderMediaManagerPresenter *NxFolderTreeViewPrivate::folders() const
{
    return presenter ? presenter->folderManagerPresenter() : nullptr;
}

INxFolderMedia *NxFolderTreeViewPrivate::currentFolder() const
{
    return presenter ? folders()->currentFolder() : nullptr;
}

bool NxFolderTreeViewPrivate::isChangeable(const INxFolderMedia *folder)
{
    const INxProject *project = INxProjectManager::getInstance()->currentProject();
    return folder && !NxMediaLibraryUtils::isSpecialFolder(folder)
           && !(project && project->isReadOnly());
}

void NxFolderTreeViewPrivate::pick(INxFolderMedia *folder)
{
    if (!presenter || !folder)
        return;
    // Who hears that a search ended may take folders, or the category, away.
    const QPointer<INxFolderMedia> picked(folder);
    presenter->mediaItemManagerPresenter()->clearSimilarSearch();
    if (presenter && picked)
        folders()->setCurrentFolder(picked);
    markCurrentFolder();
}

void NxFolderTreeViewPrivate::markCurrentFolder()
{
    const QModelIndex index = m_model->findIndex(currentFolder());
    QItemSelectionModel *selection = q->selectionModel();
    if (!index.isValid()) {
        selection->clear();
        return;
    }
    if (index == q->currentIndex() && selection->isSelected(index))
        return; // The user may have folded what it stands in since.
    expandParents(index);
    selection->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    q->scrollTo(index);
}

void NxFolderTreeViewPrivate::expandParents(const QModelIndex &index)
{
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        q->expand(above);
}

void NxFolderTreeViewPrivate::rowsCame(const QModelIndex &parent, int first, int last)
{
    if (parent.isValid())
        q->expand(parent);
    for (int row = first; row <= last; ++row)
        restoreExpanded(m_model->index(row, 0, parent));
    markCurrentFolder();
}

void NxFolderTreeViewPrivate::noteExpanded(const QModelIndex &index)
{
    const int id = folderAt(index)->folderId();
    if (q->isExpanded(index))
        m_expanded[m_category].insert(id);
    else
        m_expanded[m_category].remove(id);
    noteExpandedBelow(index);
}

void NxFolderTreeViewPrivate::noteExpandedBelow(const QModelIndex &parent)
{
    for (int row = 0; row < m_model->rowCount(parent); ++row)
        noteExpanded(m_model->index(row, 0, parent));
}

void NxFolderTreeViewPrivate::restoreExpanded(const QModelIndex &index)
{
    q->setExpanded(index, m_expanded[m_category].contains(folderAt(index)->folderId()));
    restoreExpandedBelow(index);
}

void NxFolderTreeViewPrivate::restoreExpandedBelow(const QModelIndex &parent)
{
    for (int row = 0; row < m_model->rowCount(parent); ++row)
        restoreExpanded(m_model->index(row, 0, parent));
}

QSet<int> NxFolderTreeViewPrivate::expandedFolders()
{
    INxFolderMediaManager *manager = presenter ? folders()->folderManager() : nullptr;
    if (!manager)
        return {};
    noteExpandedBelow({});
    QSet<int> known = m_expanded[m_category];
    for (auto id = known.begin(); id != known.end();)
        id = manager->folder(*id) ? std::next(id) : known.erase(id);
    return known;
}

void NxFolderTreeViewPrivate::setExpandedFolders(const QSet<int> &folderIds)
{
    if (!presenter)
        return;
    m_expanded[m_category] = folderIds;
    restoreExpandedBelow({});
}

void NxFolderTreeViewPrivate::retranslate() const
{
    q->setAccessibleName(tr("Folders"));
}

void NxFolderTreeViewPrivate::OnSkinChangedEvent(INxSkinEvent *)
{
    wear();
}

void NxFolderTreeViewPrivate::wear()
{
    const NxSkinStyle *skin = NxSkinStyle::instance();
    QPalette colours = skin->palette();
    colours.setColor(QPalette::Base, skin->GetColor(NxSkinColor::Background_Tree));
    q->setPalette(colours);
    repaintRows();
}

void NxFolderTreeViewPrivate::repaintRows() const
{
    q->viewport()->update();
}

void NxFolderTreeViewPrivate::onAfterAddItemEvent(INxFolderMedia *, INxAbstractMedia *)
{
    repaintRows();
}

void NxFolderTreeViewPrivate::onAfterRemoveItemEvent(INxFolderMedia *, INxAbstractMedia *)
{
    repaintRows();
}

void NxFolderTreeViewPrivate::onAfterMoveItemEvent(INxFolderMedia *, INxFolderMedia *,
                                                   INxAbstractMedia *)
{
    repaintRows();
}

void NxFolderTreeViewPrivate::onMediaStateChangedEvent(INxAbstractMedia *)
{
    repaintRows();
}
