// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MediaPanel.h"

#include <NxCore/INxUndoStack.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemSelectionModel.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxProjectManager.h>

#include <QHBoxLayout>
#include <QShortcut>

#include <functional>

#include "PanelList.h"

namespace {

INxUndoStack *history()
{
    INxProject *project = INxProjectManager::getInstance()->currentProject();
    return project ? project->undoStack() : nullptr;
}

} // namespace

MediaPanel::MediaPanel(NxMediaLibraryPresenter *library)
    : m_list(new PanelList(this)),
      m_tree(new NxFolderTreeView(this)),
      m_binder(new NxMediaPanelBinder(this, m_list, m_tree, this))
{
    auto *row = new QHBoxLayout(this);
    row->addWidget(m_tree, 1);
    row->addWidget(m_list, 2);
    resize(900, 600);
    serveKeys();
    m_binder->setPresenter(library);
}

MediaPanel::~MediaPanel()
{
    letGo();
}

void MediaPanel::letGo()
{
    m_binder->letGo();
}

NxMediaItemSelectionModel *MediaPanel::selection() const
{
    return m_list->mediaSelection();
}

NxMediaTreeModel *MediaPanel::treeModel() const
{
    return qobject_cast<NxMediaTreeModel *>(m_tree->model());
}

void MediaPanel::serveKeys()
{
    const auto on = [this](QWidget *widget, const QKeySequence &keys, Qt::ShortcutContext context,
                           const std::function<void()> &deed) {
        auto *shortcut = new QShortcut(keys, widget);
        shortcut->setContext(context);
        connect(shortcut, &QShortcut::activated, this, deed);
    };
    on(m_list, QKeySequence::Delete, Qt::WidgetShortcut, [this] { m_binder->removeSelection(); });
    on(m_tree, QKeySequence::Delete, Qt::WidgetShortcut, [this] { m_tree->removeFolder(); });
    on(this, QKeySequence::Undo, Qt::WindowShortcut, [] { history()->undo(); });
    on(this, QKeySequence::Redo, Qt::WindowShortcut, [] { history()->redo(); });
}
