// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/WindowDeeds.h>

#include <Brevano/window/FileManager.h>
#include <Brevano/window/ImportDesk.h>
#include <Brevano/window/MediaMenu.h>
#include <Brevano/window/MissingSearch.h>
#include <Brevano/window/PanelView.h>
#include <Brevano/window/ProjectHolder.h>
#include <Brevano/window/TimelineDesk.h>
#include <NxCore/INxUndoStack.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMissingMediaRelinker.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaPanelBinder.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>
#include <NxWidgets/NMessageDialog.h>
#include <NxWidgets/NxFileDialog.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>

using namespace NXMEDIALIBRARY;

WindowDeeds::WindowDeeds(PanelActions *actions, PanelView *panel, ImportDesk *desk,
                         MissingSearch *search, FileManager *files)
    : m_actions(actions),
      m_panel(panel),
      m_desk(desk),
      m_search(search),
      m_files(files)
{
    connectActions();
    using Binder = NxMediaPanelBinder;
    const Binder *binder = panel->binder();
    connect(binder, &Binder::sigSelectionChanged, this, &WindowDeeds::updateActions);
    connect(binder, &Binder::sigShownChanged, this, &WindowDeeds::updateActions);
    connect(binder, &Binder::sigImportDialogWanted, this, &WindowDeeds::chooseFiles);
    connect(binder, &Binder::sigImportWanted, this, &WindowDeeds::takeIn);
    connect(binder, &Binder::sigAddWanted, this,
            [this](INxAbstractMedia *media) { addToTimeline({media}); });
    connect(desk, &ImportDesk::sigRefused, this,
            [this](const QString &reason) { NMessageDialog::Infomation(m_panel, {}, reason); });
    connect(files, &FileManager::sigFailed, this, [this](const QString &, const QString &reason) {
        NMessageDialog::Infomation(m_panel, {}, reason);
    });
    updateActions();
    updateHistory();
}

void WindowDeeds::connectActions()
{
    struct Row
    {
        Id id;
        Deed deed;
    };
    static constexpr Row rows[] = {
        {Id::ImportFiles, &WindowDeeds::chooseFiles},
        {Id::ImportFolder, &WindowDeeds::chooseFolder},
        {Id::Paste, &WindowDeeds::paste},
        {Id::CopyName, &WindowDeeds::copyNames},
        {Id::CopyPath, &WindowDeeds::copyPaths},
        {Id::Undo, &WindowDeeds::undo},
        {Id::Redo, &WindowDeeds::redo},
        {Id::SelectAll, &WindowDeeds::selectAll},
        {Id::ClearSelection, &WindowDeeds::selectNothing},
        {Id::Rename, &WindowDeeds::rename},
        {Id::Remove, &WindowDeeds::remove},
        {Id::RemoveUnused, &WindowDeeds::removeUnused},
        {Id::NewFolder, &WindowDeeds::newFolder},
        {Id::LargerTiles, &WindowDeeds::larger},
        {Id::SmallerTiles, &WindowDeeds::smaller},
        {Id::AddToTimeline, &WindowDeeds::addSelection},
        {Id::Relink, &WindowDeeds::relink},
        {Id::FindMissing, &WindowDeeds::findMissing},
        {Id::ReadAgain, &WindowDeeds::readAgain},
        {Id::Reveal, &WindowDeeds::reveal},
        {Id::FindInFolder, &WindowDeeds::findInFolder},
    };
    for (const Row &row : rows)
        connect(m_actions->action(row.id), &QAction::triggered, this, row.deed);
}

void WindowDeeds::setProject(INxProject *project)
{
    disconnect(m_historyConnection);
    m_project = project;
    if (INxUndoStack *stack = history())
        m_historyConnection =
            connect(stack, &INxUndoStack::changed, this, &WindowDeeds::updateHistory);
    updateHistory();
    updateActions();
}

INxUndoStack *WindowDeeds::history() const
{
    return m_project ? m_project->undoStack() : nullptr;
}

void WindowDeeds::updateActions()
{
    const bool isReadOnly = !m_project || m_project->isReadOnly();
    const NxMediaItemManagerPresenter *items = m_panel->binder()->items();
    MediaMenu::update(m_actions, items ? items->selectedItems() : QList<INxAbstractMedia *>(),
                      isReadOnly);
    for (const Id id : {Id::ImportFiles, Id::ImportFolder, Id::Paste, Id::NewFolder,
                        Id::RemoveUnused, Id::FindMissing})
        m_actions->action(id)->setEnabled(!isReadOnly);
    for (const Id id : {Id::SelectAll, Id::ClearSelection, Id::LargerTiles, Id::SmallerTiles})
        m_actions->action(id)->setEnabled(m_project != nullptr);
    // Folders are renamed and removed by the same keys.
    if (!isReadOnly) {
        m_actions->action(Id::Rename)->setEnabled(true);
        m_actions->action(Id::Remove)->setEnabled(true);
    }
}

void WindowDeeds::updateHistory()
{
    const INxUndoStack *stack = history();
    QAction *undo = m_actions->action(Id::Undo);
    QAction *redo = m_actions->action(Id::Redo);
    undo->setEnabled(stack && stack->canUndo());
    redo->setEnabled(stack && stack->canRedo());
    undo->setText(undo->isEnabled() ? tr("&Undo %1").arg(PanelActions::stepTitle(stack->undoText()))
                                    : tr("&Undo"));
    redo->setText(redo->isEnabled() ? tr("&Redo %1").arg(PanelActions::stepTitle(stack->redoText()))
                                    : tr("&Redo"));
}

// Coming in

void WindowDeeds::import(INxFolderMedia *into, const QStringList &paths,
                         NXVBLMODEL::NxMediaImportType kind)
{
    const NxMediaItemManagerPresenter *items = m_panel->binder()->items();
    INxFolderMedia *folder = into ? into : items ? items->folder() : nullptr;
    if (!paths.isEmpty() && m_project)
        m_desk->start(folder, paths, kind);
}

void WindowDeeds::takeIn(INxFolderMedia *into, const QStringList &paths)
{
    if (paths.size() == 1 && ProjectHolder::isProjectPath(paths.constFirst()))
        Q_EMIT sigOpenWanted(paths.constFirst());
    else
        import(into, paths);
}

void WindowDeeds::chooseFiles()
{
    const QStringList paths = QFileDialog::getOpenFileNames(
        m_panel, tr("Import Files"), NxMediaLibraryUtils::getImportMediaFileDir(),
        NxFileDialog::nameFilter(NxMediaLibraryUtils::getImportFileFilter()), nullptr,
        QFileDialog::ReadOnly);
    if (paths.isEmpty())
        return;
    NxMediaLibraryUtils::writeImportMediaFileDir(QFileInfo(paths.constFirst()).absolutePath());
    import(nullptr, paths);
}

void WindowDeeds::chooseFolder()
{
    const QString path = QFileDialog::getExistingDirectory(
        m_panel, tr("Import Folder"), NxMediaLibraryUtils::getImportMediaFileDir(),
        QFileDialog::ShowDirsOnly | QFileDialog::ReadOnly);
    if (path.isEmpty())
        return;
    NxMediaLibraryUtils::writeImportMediaFileDir(path);
    import(nullptr, {path}, NXVBLMODEL::mitFolder);
}

void WindowDeeds::paste()
{
    const QStringList paths = ImportDesk::pathsOf(QApplication::clipboard()->mimeData());
    if (paths.isEmpty())
        Q_EMIT sigTold(tr("The clipboard holds no files."));
    else
        import(nullptr, paths);
}

// Editing

void WindowDeeds::copy(const QStringList &lines)
{
    if (!lines.isEmpty())
        QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void WindowDeeds::copyNames()
{
    QStringList names;
    const QList<INxAbstractMedia *> selected = m_panel->binder()->selection();
    for (const INxAbstractMedia *media : selected)
        names.append(media->name());
    copy(names);
}

void WindowDeeds::copyPaths()
{
    QStringList paths;
    const QList<INxAbstractMediaItem *> items = selectedItems();
    for (const INxAbstractMediaItem *item : items)
        paths.append(QDir::toNativeSeparators(item->filePath()));
    copy(paths);
}

void WindowDeeds::undo()
{
    if (INxUndoStack *stack = history())
        stack->undo();
}

void WindowDeeds::redo()
{
    if (INxUndoStack *stack = history())
        stack->redo();
}

void WindowDeeds::selectAll()
{
    m_panel->view()->selectAll();
}

void WindowDeeds::selectNothing()
{
    m_panel->view()->clearSelection();
}

void WindowDeeds::rename()
{
    if (m_panel->tree()->hasFocus())
        m_panel->tree()->renameFolder();
    else
        m_panel->view()->editName();
}

void WindowDeeds::remove()
{
    if (m_panel->tree()->hasFocus())
        m_panel->tree()->removeFolder();
    else
        m_panel->binder()->removeSelection();
}

void WindowDeeds::removeUnused()
{
    NxMediaItemManagerPresenter *items = m_panel->binder()->items();
    if (items && !items->removeUnusedMedia(items->folder()))
        Q_EMIT sigTold(tr("All media of this folder are used."));
}

void WindowDeeds::newFolder()
{
    m_panel->tree()->newFolder();
}

void WindowDeeds::zoom(int steps)
{
    NxMediaItemManagerPresenter *items = m_panel->binder()->items();
    if (items)
        items->setViewMode(
            NxMediaItemViewMode(qBound<int>(vmList, items->viewMode() + steps, vmLargeThumbnail)));
}

void WindowDeeds::larger()
{
    zoom(1);
}

void WindowDeeds::smaller()
{
    zoom(-1);
}

// Media

QList<INxAbstractMediaItem *> WindowDeeds::selectedItems() const
{
    QList<INxAbstractMediaItem *> items;
    const QList<INxAbstractMedia *> selected = m_panel->binder()->selection();
    for (INxAbstractMedia *media : selected) {
        if (auto *item = dynamic_cast<INxAbstractMediaItem *>(media))
            items.append(item);
    }
    return items;
}

void WindowDeeds::addToTimeline(const QList<INxAbstractMedia *> &medias)
{
    const NxResult<QString> added = TimelineDesk::append(m_project, medias);
    Q_EMIT sigTold(added ? tr("%n added to \"%1\"", nullptr, medias.size()).arg(*added)
                         : added.error().message);
}

void WindowDeeds::addSelection()
{
    addToTimeline(m_panel->binder()->selection());
}

void WindowDeeds::relink()
{
    const QList<INxAbstractMedia *> selected = m_panel->binder()->selection();
    if (NxMediaItemManagerPresenter *items = m_panel->binder()->items())
        items->relinkMedia(selected);
}

void WindowDeeds::findMissing()
{
    NxMediaItemManagerPresenter *items = m_panel->binder()->items();
    const INxFolderMedia *folder = items ? items->folder() : nullptr;
    const QList<INxAbstractMediaItem *> missing =
        folder ? NxMissingMediaRelinker::missingMedia(folder) : QList<INxAbstractMediaItem *>();
    if (missing.isEmpty()) {
        Q_EMIT sigTold(tr("No file of this folder is missing."));
        return;
    }
    const QString directory = QFileDialog::getExistingDirectory(
        m_panel, tr("Find Missing Files In"), NxMediaLibraryUtils::getImportMediaFileDir(),
        QFileDialog::ShowDirsOnly | QFileDialog::ReadOnly);
    if (!directory.isEmpty() && !m_search->start(items, missing, directory))
        Q_EMIT sigTold(tr("A search is running already."));
}

void WindowDeeds::readAgain()
{
    INxFootageService *service = m_project ? m_project->footageService() : nullptr;
    if (service)
        service->read(selectedItems(), INxFootageService::wFacts | INxFootageService::wPictures);
}

void WindowDeeds::reveal()
{
    const QList<INxAbstractMediaItem *> items = selectedItems();
    if (!items.isEmpty())
        m_files->reveal(items.constFirst()->filePath());
}

void WindowDeeds::findInFolder()
{
    const QList<INxAbstractMedia *> selected = m_panel->binder()->selection();
    if (!selected.isEmpty())
        m_panel->binder()->showInFolder(selected.constFirst());
}

void WindowDeeds::showFile(const QString &path)
{
    INxMediaManager *manager =
        m_project ? m_project->mediaLibrary()->mediaManager(NXVBLMODEL::mctMedia) : nullptr;
    INxFolderMedia *root = manager ? manager->folderManager()->rootFolder() : nullptr;
    if (root)
        m_panel->binder()->showInFolder(root->findMediaByPath(path, true));
}
