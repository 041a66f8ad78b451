// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFolderTreeDrop_p.h"

#include <NxCore/NxUndoRedoCommander.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxProjectManager.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxVBLModel/NxMediaItemMimeData.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QTreeView>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int LineWidth = 2; // px, of what shows where a drop goes.

INxProject *project()
{
    return INxProjectManager::getInstance()->currentProject();
}

bool isReadOnly()
{
    return project() && project()->isReadOnly();
}

QStringList localFiles(const QMimeData *data)
{
    QStringList paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

/// Files are never moved out of where they lie: whoever drags them would delete them.
Qt::DropAction actionFor(const QDropEvent &event, bool isFiles)
{
    const Qt::DropActions possible = event.possibleActions();
    const Qt::DropAction wanted = isFiles ? Qt::CopyAction : Qt::MoveAction;
    const Qt::DropAction second = isFiles ? Qt::LinkAction : Qt::CopyAction;
    if (possible & wanted)
        return wanted;
    return possible & second ? second : Qt::IgnoreAction;
}

} // namespace

NxFolderTreeDrop::NxFolderTreeDrop(QTreeView *view) : m_view(view)
{
    m_opening.setSingleShot(true);
    QObject::connect(&m_opening, &QTimer::timeout, [this] { open(); });
}

void NxFolderTreeDrop::setPresenter(NxMediaCategoryPresenter *presenter)
{
    leave();
    m_presenter = presenter;
    m_dragged.clear();
}

void NxFolderTreeDrop::setDraggedFolder(INxFolderMedia *folder)
{
    m_dragged = folder;
}

NxFolderTreeDrop::Cargo NxFolderTreeDrop::cargoOf(const QMimeData *data) const
{
    if (!data || !m_presenter || isReadOnly())
        return Cargo::None;
    if (m_dragged && data->hasFormat(m_view->model()->mimeTypes().first()))
        return Cargo::Folder;
    if (qobject_cast<const NxMediaItemMimeData *>(data))
        return Cargo::Media;
    return localFiles(data).isEmpty() ? Cargo::None : Cargo::Files;
}

NxFolderTreeDrop::Target NxFolderTreeDrop::targetAt(const QPoint &at, Cargo cargo) const
{
    Target target;
    target.index = m_view->indexAt(at);
    if (cargo != Cargo::Folder || !target.index.isValid()
        || NxMediaLibraryUtils::isSpecialFolder(folderAt(target.index)))
        return target;
    const QRect row = m_view->visualRect(target.index);
    const int edge = row.height() / 4;
    if (at.y() < row.top() + edge)
        target.side = Side::Above;
    else if (at.y() > row.bottom() - edge)
        target.side = Side::Below;
    return target;
}

NxFolderTreeDrop::Place NxFolderTreeDrop::placeOf(const Target &target) const
{
    if (!target.index.isValid())
        return {};
    INxFolderMedia *folder = folderAt(target.index);
    if (target.side == Side::On)
        return {folder, -1};
    // Right below a folder that is unfolded stands the first one in it.
    if (target.side == Side::Below && m_view->isExpanded(target.index) && folder->hasChildFolders())
        return {folder, 0};
    return {folder->parentFolder(), folder->rowInParent() + (target.side == Side::Below ? 1 : 0)};
}

bool NxFolderTreeDrop::mayGo(Cargo cargo, const QMimeData *data, const Target &target) const
{
    INxFolderMedia *folder = target.index.isValid() ? folderAt(target.index) : nullptr;
    if (cargo == Cargo::Folder)
        return mayMoveFolder(placeOf(target));
    if (cargo == Cargo::Media)
        return mayMoveMedia(data, folder);
    const bool isTaken = !folder || NxMediaLibraryUtils::findCanAddMediaFolder(folder);
    return cargo == Cargo::Files && isTaken;
}

bool NxFolderTreeDrop::mayMoveFolder(const Place &place) const
{
    if (!place.parent || place.parent == m_dragged || m_dragged->contains(place.parent, true))
        return false;
    // A section that takes no media takes those folders that stand in it already.
    return !NxMediaLibraryUtils::isSpecialFolder(place.parent) || place.parent->canAddMedia()
           || place.parent == m_dragged->owner();
}

bool NxFolderTreeDrop::mayMoveMedia(const QMimeData *data, const INxFolderMedia *into) const
{
    INxFolderMediaManager *folders = m_presenter->folderManagerPresenter()->folderManager();
    if (!into || !into->canAddMedia() || !folders)
        return false;
    const INxFolderMedia *root = folders->rootFolder();
    const QList<INxAbstractMedia *> items = static_cast<const NxMediaItemMimeData *>(data)->items();
    return root && std::any_of(items.begin(), items.end(), [&](const INxAbstractMedia *media) {
               return media->parentFolder() != into && root->containsMedia(media, true);
           });
}

void NxFolderTreeDrop::hover(QDropEvent *event)
{
    const Cargo cargo = cargoOf(event->mimeData());
    const Target target = targetAt(event->pos(), cargo);
    const Qt::DropAction action = actionFor(*event, cargo == Cargo::Files);
    if (cargo != Cargo::None)
        openSoon(target.index);
    if (action == Qt::IgnoreAction || !mayGo(cargo, event->mimeData(), target)) {
        m_isShown = false;
        m_view->viewport()->update();
        event->ignore();
        return;
    }
    showTarget(target);
    event->setDropAction(action);
    event->accept();
}

void NxFolderTreeDrop::showTarget(const Target &target)
{
    m_target = target;
    m_isShown = true;
    m_view->viewport()->update();
}

void NxFolderTreeDrop::leave()
{
    m_isShown = false;
    openSoon({});
    m_view->viewport()->update();
}

void NxFolderTreeDrop::openSoon(const QModelIndex &index)
{
    if (m_rested == index)
        return;
    m_rested = index;
    if (index.isValid() && m_view->autoExpandDelay() >= 0)
        m_opening.start(m_view->autoExpandDelay());
    else
        m_opening.stop();
}

void NxFolderTreeDrop::open()
{
    if (m_rested.isValid())
        m_view->expand(m_rested);
}

void NxFolderTreeDrop::drop(QDropEvent *event)
{
    hover(event);
    const bool isWelcome = event->isAccepted();
    leave();
    if (!isWelcome)
        return;
    const Cargo cargo = cargoOf(event->mimeData());
    const Place place = placeOf(targetAt(event->pos(), cargo));
    if (cargo == Cargo::Folder)
        moveFolder(place);
    else if (cargo == Cargo::Media)
        moveMedia(event->mimeData(), place.parent);
    else
        filesDropped(place.parent, localFiles(event->mimeData()));
}

void NxFolderTreeDrop::moveFolder(const Place &place)
{
    const QString name = m_dragged->name();
    if (m_presenter->folderManagerPresenter()->moveFolder(m_dragged, place.parent, place.row))
        return;
    const QList<INxFolderMedia *> there = place.parent->childFolders();
    const bool isTaken = std::any_of(there.begin(), there.end(), [&](const INxFolderMedia *child) {
        return child != m_dragged && child->name() == name;
    });
    const QString text = isTaken ? tr("There is a folder \"%1\" in \"%2\" already.")
                                 : tr("The folder \"%1\" cannot be moved to \"%2\".");
    refused(text.arg(name, place.parent->name()));
}

void NxFolderTreeDrop::moveMedia(const QMimeData *data, INxFolderMedia *into)
{
    INxMediaItemManager *items = m_presenter->mediaItemManagerPresenter()->itemManager();
    if (!items)
        return;
    const NxUndoRedoCommander step(project() ? project()->undoStack() : nullptr,
                                   QStringLiteral("NxFolderTreeDrop::moveMedia"),
                                   QStringLiteral("moveMediaItems"));
    if (!items->moveMediaItems(nullptr, into,
                               static_cast<const NxMediaItemMimeData *>(data)->items()))
        refused(tr("The media cannot be moved to \"%1\".").arg(into->name()));
}

void NxFolderTreeDrop::paint(QPainter *painter) const
{
    if (!m_isShown)
        return;
    const QRect ground = m_view->viewport()->rect();
    const QRect row = m_target.index.isValid() ? m_view->visualRect(m_target.index) : ground;
    painter->save();
    painter->setPen({NxSkinStyle::instance()->GetColor(NxSkinColor::Accent), LineWidth});
    if (m_target.side == Side::On) {
        painter->drawRect(row.adjusted(1, 1, -1, -1));
    } else {
        const int y = m_target.side == Side::Above ? row.top() : row.bottom();
        painter->drawLine(row.left(), y, row.right(), y);
    }
    painter->restore();
}
