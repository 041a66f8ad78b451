// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFolderTreeViewPrivate_p.h"

#include "NxFolderRows_p.h"

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxProjectManager.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxWidgets/NMessageDialog.h>

#include <QApplication>

#include <algorithm>

namespace {

INxFolderMedia *childNamed(const INxFolderMedia *parent, const QString &name)
{
    const QList<INxFolderMedia *> children = parent->childFolders();
    const auto found = std::find_if(children.begin(), children.end(),
                                    [&](const INxFolderMedia *one) { return one->name() == name; });
    return found == children.end() ? nullptr : *found;
}

} // namespace

void NxFolderTreeViewPrivate::newFolder()
{
    if (!currentFolder() || tellIfReadOnly())
        return;
    const QString wanted = tr("New Folder");
    for (INxFolderMedia *at = currentFolder(); at; at = at->parentFolder()) {
        QString name = wanted;
        for (int number = 2; childNamed(at, name); ++number)
            name = tr("New Folder %1").arg(number);
        if (INxFolderMedia *made = folders()->addFolder(at, name)) {
            editName(made);
            return;
        }
    }
    tellLater(tr("No folder can be made in \"%1\".").arg(currentFolder()->name()));
}

void NxFolderTreeViewPrivate::editName(INxFolderMedia *folder)
{
    if (!folder || NxMediaLibraryUtils::isSpecialFolder(folder) || tellIfReadOnly())
        return;
    const QPersistentModelIndex index = m_model->findIndex(folder);
    if (!index.isValid() || (m_edited == index && q->indexWidget(index)))
        return;
    finishEditing();
    if (!index.isValid())
        return;
    expandParents(index);
    q->scrollTo(index);
    m_edited = index;
    q->edit(index);
}

void NxFolderTreeViewPrivate::finishEditing()
{
    const QPointer<QWidget> editor = q->indexWidget(m_edited);
    if (editor)
        q->commitData(editor);
    if (editor)
        q->closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void NxFolderTreeViewPrivate::rename(INxFolderMedia *folder, const QString &name)
{
    if (folder && presenter && !folders()->renameFolder(folder, name))
        tellLater(refusal(folder, name.trimmed()));
}

QString NxFolderTreeViewPrivate::refusal(const INxFolderMedia *folder, const QString &name) const
{
    if (name.isEmpty())
        return tr("A folder needs a name. \"%1\" keeps its own.").arg(folder->name());
    const INxFolderMedia *parent = folder->parentFolder();
    const INxFolderMedia *namesake = parent ? childNamed(parent, name) : nullptr;
    if (namesake && namesake != folder)
        return tr("There is a folder \"%2\" already. \"%1\" keeps its name.")
            .arg(folder->name(), name);
    return tr("The folder \"%1\" cannot be called \"%2\".").arg(folder->name(), name);
}

bool NxFolderTreeViewPrivate::tellIfReadOnly() const
{
    const INxProject *project = INxProjectManager::getInstance()->currentProject();
    if (!project || !project->isReadOnly())
        return false;
    tellLater(project->readOnlyReason());
    return true;
}

// A drop or an edited name may still be going on, and the dialog waits for the user.
void NxFolderTreeViewPrivate::tellLater(const QString &text) const
{
    NxFolderTreeView *view = q;
    QMetaObject::invokeMethod(
        view, [view, text] { NMessageDialog::Infomation(view, {}, text); }, Qt::QueuedConnection);
}

QModelIndex NxFolderTreeViewPrivate::search(const QString &typed)
{
    const bool isNew = typed.isEmpty() || !m_typing.isValid()
                       || m_typing.elapsed() > QApplication::keyboardInputInterval();
    m_typing.start();
    m_typed = isNew ? typed : m_typed + typed;
    if (m_typed.isEmpty())
        return {};
    // The same letter again goes on to the next name that begins with it.
    const bool isOneLetter = m_typed.count(m_typed.front(), Qt::CaseInsensitive) == m_typed.size();
    const QString wanted = isOneLetter ? QString(m_typed.front()) : m_typed;
    const QModelIndex first = m_model->index(0, 0);
    const auto after = [&](const QModelIndex &row) {
        const QModelIndex next = q->indexBelow(row);
        return next.isValid() ? next : first;
    };
    const QModelIndex current = q->currentIndex().isValid() ? q->currentIndex() : first;
    const QModelIndex start = isOneLetter ? after(current) : current;
    QModelIndex row = start;
    do {
        if (row.isValid() && folderAt(row)->name().startsWith(wanted, Qt::CaseInsensitive))
            return row;
        row = after(row);
    } while (row != start);
    return {};
}
