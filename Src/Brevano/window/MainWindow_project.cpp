// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The project in the window, and what the user arranged.

#include <Brevano/window/MainWindow.h>

#include <Brevano/window/ImportDesk.h>
#include <Brevano/window/InfoPanel.h>
#include <Brevano/window/Languages.h>
#include <Brevano/window/MissingSearch.h>
#include <Brevano/window/PanelActions.h>
#include <Brevano/window/PanelView.h>
#include <Brevano/window/ProjectDialogs.h>
#include <Brevano/window/ProjectHolder.h>
#include <Brevano/window/VisibleFirst.h>
#include <Brevano/window/WindowDeeds.h>
#include <Brevano/window/WindowMemory.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaPanelBinder.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxProject.h>
#include <NxWidgets/NMessageDialog.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>

namespace {

using Id = PanelActions::Id;
using Part = WindowMemory::Part;

constexpr int TellMsec = 8000;
const auto PanelSplitter = QStringLiteral("Panel");

QString columnsName(NXVBLMODEL::NxMediaCategoryType category)
{
    return QStringLiteral("Columns%1").arg(int(category));
}

QSet<int> numbers(const QStringList &texts)
{
    QSet<int> found;
    for (const QString &text : texts)
        found.insert(text.toInt());
    return found;
}

} // namespace

// What the user arranged

void MainWindow::restoreLook()
{
    m_languages->setCurrent(m_memory->language());
    NxSkinStyle::instance()->setSkin(m_memory->skin());
    OnSkinChangedEvent(nullptr);
    m_memory->restoreWindow(this);
    m_memory->restoreSplitter(PanelSplitter, m_panel->splitter());
    const bool showsFolders = m_memory->isShown(Part::Folders);
    m_actions->action(Id::ShowFolders)->setChecked(showsFolders);
    m_panel->setFoldersShown(showsFolders);
    m_infoDock->setVisible(m_memory->isShown(Part::Info));
    m_reportDock->setVisible(m_memory->isShown(Part::Report));
    m_actions->action(Id::ShowInfo)->setChecked(m_memory->isShown(Part::Info));
    m_actions->action(Id::ShowReport)->setChecked(m_memory->isShown(Part::Report));
}

void MainWindow::save()
{
    m_memory->saveWindow(*this);
    m_memory->saveSplitter(PanelSplitter, *m_panel->splitter());
    if (m_columnsSoon.isActive())
        saveColumns();
    m_memory->flush();
}

void MainWindow::OnSkinChangedEvent(INxSkinEvent *)
{
    const NxSkinStyle *skin = NxSkinStyle::instance();
    QApplication::setPalette(skin->palette());
    m_memory->setSkin(skin->skin());
    m_actions->action(skin->skin() == NxSkin::Dark ? Id::SkinDark : Id::SkinLight)
        ->setChecked(true);
    QPalette warning = skin->palette();
    warning.setColor(QPalette::WindowText, skin->GetColor(NxSkinColor::Warning));
    m_warning->setPalette(warning);
}

// Projects

bool MainWindow::openProject(const QString &path)
{
    return ProjectDialogs::open(m_holder.get(), path, this);
}

bool MainWindow::createProject(const QString &path)
{
    return ProjectDialogs::create(m_holder.get(), path, this);
}

bool MainWindow::closeProject()
{
    save();
    const NxResult<void> closed = m_holder->close();
    if (!closed)
        NMessageDialog::Infomation(this, {}, closed.error().message);
    return !m_holder->project();
}

void MainWindow::showProject()
{
    NxMediaLibraryPresenter *presenter = m_holder->presenter();
    m_desk->setProject(m_holder->project());
    m_deeds->setProject(m_holder->project());
    m_visibleFirst->setProject(m_holder->project());
    restoreFolders();
    m_panel->setPresenter(presenter);
    m_pages->setCurrentIndex(1);
    updateTitle();
    m_panel->view()->setFocus(Qt::OtherFocusReason);
}

void MainWindow::leaveProject()
{
    m_search->cancel();
    m_info->setMedia({}, nullptr);
    m_info->setFolder(nullptr);
    m_desk->setProject(nullptr);
    m_deeds->setProject(nullptr);
    m_visibleFirst->setProject(nullptr);
    m_shownCategory = NXVBLMODEL::mctNone;
    m_panel->setPresenter(nullptr);
    m_pages->setCurrentIndex(0);
    updateTitle();
}

void MainWindow::restoreFolders()
{
    NxMediaLibraryPresenter *presenter = m_holder->presenter();
    for (int code = NXVBLMODEL::mctMedia; code < NXVBLMODEL::MediaCategoryCount; ++code) {
        const auto category = NXVBLMODEL::NxMediaCategoryType(code);
        bool isNumber = false;
        const int id = m_memory->folder(m_holder->path(), category).toInt(&isNumber);
        NxMediaCategoryPresenter *one =
            isNumber ? presenter->getMediaCategoryPresenter(category) : nullptr;
        NxFolderMediaManagerPresenter *folders = one ? one->folderManagerPresenter() : nullptr;
        INxFolderMedia *folder =
            folders && folders->folderManager() ? folders->folderManager()->folder(id) : nullptr;
        if (folder)
            folders->setCurrentFolder(folder);
    }
    presenter->setCurrentCategoryType(m_memory->category(m_holder->path()));
}

void MainWindow::rememberShown()
{
    const NxMediaPanelBinder *binder = m_panel->binder();
    const NxMediaItemManagerPresenter *items = binder->items();
    if (!items)
        return;
    if (items->categoryType() != m_shownCategory)
        restoreCategory();
    m_memory->setCategory(m_holder->path(), m_shownCategory);
    const INxFolderMedia *folder = items->getCategoryTreeSelectedFolder();
    if (folder)
        m_memory->setFolder(m_holder->path(), m_shownCategory, QString::number(folder->folderId()));
    m_info->setFolder(items->folder());
    m_info->setMedia(items->selectedItems(), m_holder->project());
}

void MainWindow::restoreCategory()
{
    m_shownCategory = m_panel->binder()->items()->categoryType();
    const auto expanded = m_memory->expandedFolders(m_holder->path(), m_shownCategory);
    if (expanded)
        m_panel->tree()->setExpandedFolders(numbers(*expanded));
    m_memory->restoreHeader(columnsName(m_shownCategory), m_panel->view()->columnHeader());
}

void MainWindow::saveExpanded()
{
    QStringList ids;
    const QSet<int> expanded = m_panel->tree()->expandedFolders();
    for (const int id : expanded)
        ids.append(QString::number(id));
    ids.sort();
    m_memory->setExpandedFolders(m_holder->path(), m_shownCategory, ids);
}

void MainWindow::saveColumns()
{
    if (m_panel->binder()->model())
        m_memory->saveHeader(columnsName(m_shownCategory), *m_panel->view()->columnHeader());
}

void MainWindow::updateTitle()
{
    const QString name = m_holder->title();
    setWindowTitle(name.isEmpty() ? QApplication::applicationName()
                                  : name + QStringLiteral(" - ") + QApplication::applicationName());
    setWindowFilePath(m_holder->path());
    QStringList warnings;
    for (const QString &text : {m_holder->readOnlyReason(), m_holder->damage()}) {
        if (!text.isEmpty())
            warnings.append(text);
    }
    m_warning->setText(warnings.join(QLatin1Char('\n')));
    m_warning->setVisible(!warnings.isEmpty());
    const bool hasProject = m_holder->project() != nullptr;
    m_actions->action(Id::SaveCopy)->setEnabled(hasProject);
    m_actions->action(Id::CloseProject)->setEnabled(hasProject);
    updateCounts();
}

void MainWindow::updateCounts()
{
    const NxMediaPanelBinder *binder = m_panel->binder();
    const NxMediaItemManagerPresenter *items = binder->items();
    QString text;
    if (items) {
        text = tr("%Ln media", nullptr, binder->listedCount());
        const int selected = items->selectedItems().size();
        if (selected > 0)
            text += QStringLiteral(", ") + tr("%Ln selected", nullptr, selected);
    }
    m_counts->setText(text);
}

void MainWindow::tell(const QString &text)
{
    statusBar()->showMessage(text, TellMsec);
}

void MainWindow::importPaths(const QStringList &paths)
{
    m_deeds->import(nullptr, paths);
}

void MainWindow::finishImport()
{
    m_isTroubleShown = false;
    showTrouble();
}

// What needs the user's eye opens beside the panel, once for each import; a plain success is told
// by the status bar.
void MainWindow::showTrouble()
{
    const NxImportReport report = m_desk->report();
    if (m_isTroubleShown || (report.refused == 0 && report.unreadable == 0))
        return;
    m_isTroubleShown = true;
    m_reportDock->show();
}
