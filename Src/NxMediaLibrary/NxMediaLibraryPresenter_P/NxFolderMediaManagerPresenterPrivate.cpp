// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxFolderMediaManagerPresenterPrivate.h>

#include <NxCore/NxUndoRedoCommander.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxWidgets/NMessageDialog.h>

NxFolderMediaManagerPresenterPrivate::NxFolderMediaManagerPresenterPrivate(
    INxFolderMediaManager *manager)
    : folderManager(manager),
      m_managerLife(manager ? manager->lifeToken() : std::weak_ptr<void>()),
      m_connector(std::make_unique<
                  NxObserverConnectorT<INxFolderMediaManager, INxMediaFolderEventObserver>>(manager,
                                                                                            this))
{
}

NxFolderMediaManagerPresenterPrivate::~NxFolderMediaManagerPresenterPrivate() = default;

NxFolderMediaManagerPresenter *NxFolderMediaManagerPresenterPrivate::q() const
{
    return static_cast<NxFolderMediaManagerPresenter *>(q_ptr);
}

INxFolderMediaManager *NxFolderMediaManagerPresenterPrivate::manager() const
{
    return m_managerLife.expired() ? nullptr : folderManager;
}

void NxFolderMediaManagerPresenterPrivate::removeFolder(INxFolderMedia *folder)
{
    if (!folder || !manager() || tellIfReadOnly() || !manager()->canRemoveFolder(folder))
        return;
    const QPointer<NxFolderMediaManagerPresenter> alive(q());
    const QPointer<INxFolderMedia> asked(folder);
    const QString question =
        NxFolderMediaManagerPresenter::tr("Are you sure you want to delete the selected folder");
    const QString text = QStringLiteral("%1(%2)?").arg(question, folder->name());
    const bool confirmed =
        NMessageDialog::Question_YesNo(nullptr, NxFolderMediaManagerPresenter::tr("Alert"), text);
    if (!confirmed || !alive || !asked || !manager() || !currentProject())
        return;
    const NxUndoRedoCommander step(
        undoStack(), QStringLiteral("NxFolderMediaManagerPresenterPrivate::removeFolder"),
        QStringLiteral("deleteFolder"));
    manager()->removeFolder(folder);
}

bool NxFolderMediaManagerPresenterPrivate::holdsCurrentFolder(const INxFolderMedia *parent,
                                                              int first, int last) const
{
    if (!currentFolder)
        return false;
    for (int row = first; row <= last; ++row) {
        const INxFolderMedia *child = parent->childFolder(row);
        if (child && (child == currentFolder || child->contains(currentFolder, true)))
            return true;
    }
    return false;
}

void NxFolderMediaManagerPresenterPrivate::onBeforeRemoveFolderEvent(INxFolderMedia *parent,
                                                                     const int &first,
                                                                     const int &last)
{
    if (parent && !m_isMoving && holdsCurrentFolder(parent, first, last))
        m_heir = parent;
}

void NxFolderMediaManagerPresenterPrivate::onAfterRemoveFolderEvent()
{
    const QPointer<INxFolderMedia> heir = m_heir;
    m_heir.clear();
    if (heir)
        q()->setCurrentFolder(heir);
}

void NxFolderMediaManagerPresenterPrivate::onBeforeMoveFolderEvent()
{
    m_isMoving = true; // A moved folder is told as removed and added; it stays the current one.
}

void NxFolderMediaManagerPresenterPrivate::onAfterMoveFolderEvent()
{
    m_isMoving = false;
}
