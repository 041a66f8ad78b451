// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "TreeSession.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int ManyFolders = 24;

bool holds(const ScriptedFolder *top, const INxFolderMedia *folder)
{
    return top == folder
           || std::any_of(top->children.begin(), top->children.end(),
                          [folder](const auto &child) { return holds(child.get(), folder); });
}

} // namespace

void TreeSession::beforeAdd(INxFolderMedia *parent, int first, int last)
{
    m_model.onBeforeAddFolderEvent(parent, first, last);
    m_plain.beforeAdd(parent, first, last);
}

void TreeSession::afterAdd()
{
    m_model.onAfterAddFolderEvent();
    m_plain.afterAdd();
}

void TreeSession::beforeRemove(INxFolderMedia *parent, int first, int last)
{
    m_model.onBeforeRemoveFolderEvent(parent, first, last);
    m_plain.beforeRemove(parent, first, last);
}

void TreeSession::afterRemove()
{
    m_model.onAfterRemoveFolderEvent();
    m_plain.afterRemove();
}

void TreeSession::stateChanged(INxFolderMedia *folder)
{
    m_model.onFolderStateChangedEvent(folder);
    m_plain.stateChanged(folder);
}

void TreeSession::loadRoot(INxFolderMedia *folder)
{
    m_model.load(folder);
    m_plain.load(folder);
}

void TreeSession::bury(std::vector<std::unique_ptr<ScriptedFolder>> folders)
{
    const bool holdsRoot = std::any_of(folders.begin(), folders.end(), [this](const auto &folder) {
        return holds(folder.get(), m_plain.root());
    });
    folders.clear();
    if (holdsRoot)
        m_plain.rootDied();
}

void TreeSession::add(const TreeEvent &event)
{
    if (folders().size() >= ManyFolders) {
        remove(event);
        return;
    }
    ScriptedFolder *parent = any(event.a);
    const int first = event.b % (int(parent->children.size()) + 1);
    const int last = first + event.c % 3;
    beforeAdd(parent, first, last);
    for (int row = first; row <= last; ++row)
        parent->insert(row, newFolder());
    afterAdd();
}

void TreeSession::remove(const TreeEvent &event)
{
    ScriptedFolder *parent = any(event.a);
    if (parent->children.empty())
        return;
    const int first = event.b % int(parent->children.size());
    const int last = std::min(first + event.c % 3, int(parent->children.size()) - 1);
    std::vector<std::unique_ptr<ScriptedFolder>> removed;
    beforeRemove(parent, first, last);
    for (int row = first; row <= last; ++row)
        removed.push_back(parent->take(first));
    afterRemove();
    bury(std::move(removed));
}

void TreeSession::move(const TreeEvent &event)
{
    ScriptedFolder *folder = any(event.a);
    if (folder == m_root.get())
        return;
    ScriptedFolder *from = folder->above;
    const int oldRow = folder->row;
    m_model.onBeforeMoveFolderEvent();
    beforeRemove(from, oldRow, oldRow);
    std::unique_ptr<ScriptedFolder> moved = from->take(oldRow);
    afterRemove();
    ScriptedFolder *to = any(event.b);
    const int newRow = event.c % (int(to->children.size()) + 1);
    beforeAdd(to, newRow, newRow);
    to->insert(newRow, std::move(moved));
    afterAdd();
    m_model.onAfterMoveFolderEvent();
}

void TreeSession::rename(const TreeEvent &event)
{
    ScriptedFolder *folder = any(event.a);
    folder->title = QStringLiteral("r%1").arg(++m_serial);
    stateChanged(folder);
}

void TreeSession::changeUnknown(const TreeEvent &event)
{
    ScriptedFolder loose;
    INxFolderMedia *const unknown[] = {nullptr, &loose, m_elsewhere.get(), m_elsewhere->child(0)};
    stateChanged(unknown[event.a % 4]);
    beforeAdd(unknown[event.b % 2], 0, 0);
    beforeRemove(unknown[event.c % 2], 0, 0);
}

void TreeSession::addElsewhere(const TreeEvent &event)
{
    ScriptedFolder *parent = event.a % 2 ? m_elsewhere.get() : m_elsewhere->child(0);
    const int row = event.b % (int(parent->children.size()) + 1);
    beforeAdd(parent, row, row);
    parent->insert(row, newFolder());
    afterAdd();
}

void TreeSession::removeElsewhere(const TreeEvent &event)
{
    ScriptedFolder *parent = m_elsewhere->child(0);
    if (parent->children.empty())
        return;
    const int row = event.b % int(parent->children.size());
    std::vector<std::unique_ptr<ScriptedFolder>> removed;
    beforeRemove(parent, row, row);
    removed.push_back(parent->take(row));
    afterRemove();
    bury(std::move(removed));
}

void TreeSession::endOnly(const TreeEvent &event)
{
    if (event.a % 2)
        afterAdd();
    else
        afterRemove();
}

void TreeSession::nest(const TreeEvent &event)
{
    if (folders().size() >= ManyFolders)
        return;
    ScriptedFolder *parent = any(event.a);
    ScriptedFolder *other = any(event.b);
    if (!isShown(parent))
        return;
    beforeAdd(parent, 0, 0);
    if (event.c % 2)
        beforeAdd(other, 0, 0);
    else
        beforeRemove(other, 0, 0);
    afterRemove();
    parent->insert(0, newFolder());
    afterAdd();
    afterAdd();
}

void TreeSession::loadInside(const TreeEvent &event)
{
    ScriptedFolder *parent = any(event.a);
    if (!isShown(parent) || parent->children.empty())
        return;
    std::vector<std::unique_ptr<ScriptedFolder>> removed;
    beforeRemove(parent, 0, 0);
    loadRoot(event.b % 3 ? m_root.get() : any(event.c));
    removed.push_back(parent->take(0));
    afterRemove();
    bury(std::move(removed));
}

void TreeSession::clearInside(const TreeEvent &event)
{
    beforeAdd(any(event.a), 0, 0);
    clear(event);
    afterAdd();
    loadRoot(m_root.get());
}

void TreeSession::unsubscribeInside(const TreeEvent &event)
{
    beforeAdd(any(event.a), 0, 0);
    m_model.unSubscribeFoderManager();
    m_plain.unsubscribed();
    afterAdd();
}

void TreeSession::load(const TreeEvent &event)
{
    INxFolderMedia *const roots[] = {m_root.get(), m_root.get(), any(event.a), m_elsewhere.get(),
                                     nullptr};
    loadRoot(roots[event.b % 5]);
}

void TreeSession::clear(const TreeEvent &)
{
    m_model.clear();
    m_plain.clear();
}

void TreeSession::find(const TreeEvent &event)
{
    INxFolderMedia *const wanted[] = {any(event.a), any(event.a), m_elsewhere->child(0), nullptr};
    INxFolderMedia *const folder = wanted[event.b % 4];
    const QModelIndex start = m_model.findIndex(any(event.c));
    INxFolderMedia *const top = start.isValid() ? any(event.c) : m_plain.root();
    const QString should = m_plain.placeBelow(top, folder);
    const QString is = TreeViewer::place(m_model.findIndex(folder, start));
    if (is != (should.isEmpty() ? QStringLiteral("-") : should))
        m_complaint += QStringLiteral("found at %1, is at %2\n").arg(is, should);
}
