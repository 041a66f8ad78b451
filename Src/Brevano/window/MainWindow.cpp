// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/MainWindow.h>

#include <Brevano/window/FileManager.h>
#include <Brevano/window/ImportDesk.h>
#include <Brevano/window/ImportReportView.h>
#include <Brevano/window/ImportStatus.h>
#include <Brevano/window/InfoPanel.h>
#include <Brevano/window/Languages.h>
#include <Brevano/window/MediaMenu.h>
#include <Brevano/window/MissingSearch.h>
#include <Brevano/window/PanelActions.h>
#include <Brevano/window/PanelView.h>
#include <Brevano/window/ProjectHolder.h>
#include <Brevano/window/RecentMenu.h>
#include <Brevano/window/StartPage.h>
#include <Brevano/window/VisibleFirst.h>
#include <Brevano/window/WindowDeeds.h>
#include <Brevano/window/WindowMemory.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaPanelBinder.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/NxMediaItemMimeData.h>
#include <NxWidgets/NMessageDialog.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>

namespace {

using Id = PanelActions::Id;
using Part = WindowMemory::Part;

constexpr int ColumnsMsec = 500;
constexpr int InfoWidth = 270; // px, at first.
constexpr QSize FirstSize{1180, 760};
constexpr int WarningMargin = 6; // px

} // namespace

MainWindow::MainWindow(WindowMemory *memory, const NxEmbeddedEngine::Options &options,
                       QWidget *parent)
    : QMainWindow(parent),
      m_memory(memory),
      m_languages(std::make_unique<Languages>()),
      m_holder(std::make_unique<ProjectHolder>(memory, options)),
      m_actions(new PanelActions(this)),
      m_desk(new ImportDesk(this)),
      m_files(new FileManager(this)),
      m_panel(new PanelView(m_actions)),
      m_start(new StartPage(m_actions, memory, this)),
      m_pages(new QStackedWidget(this)),
      m_warning(new QLabel(this)),
      m_info(new InfoPanel(m_actions, this)),
      m_report(new ImportReportView(m_desk, this)),
      m_infoDock(new QDockWidget(this)),
      m_reportDock(new QDockWidget(this)),
      m_search(new MissingSearch(this)),
      m_status(new ImportStatus(m_desk, this)),
      m_counts(new QLabel(this)),
      m_recent(new RecentMenu(memory, this)),
      m_visibleFirst(new VisibleFirst(m_panel->view(), this)),
      m_deeds(std::make_unique<WindowDeeds>(m_actions, m_panel, m_desk, m_search, m_files))
{
    NxSkinStyle::instance()->Attach(this);
    layOut();
    makeDocks();
    makeStatusBar();
    makeMenus();
    connectActions();
    connectParts();
    connectContextMenus();
    connectMemory();
    restoreLook();
    retranslate();
    updateTitle();
}

MainWindow::~MainWindow()
{
    NxSkinStyle::instance()->Detach(this);
    leaveProject();
    m_holder->disconnect(this); // It closes the project when the parts of the window are gone.
}

void MainWindow::layOut()
{
    auto *project = new QWidget(m_pages);
    auto *column = new QVBoxLayout(project);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_warning->setWordWrap(true);
    m_warning->setMargin(WarningMargin);
    m_warning->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_warning->hide();
    column->addWidget(m_warning);
    column->addWidget(m_panel, 1);
    m_pages->addWidget(m_start);
    m_pages->addWidget(project);
    setCentralWidget(m_pages);
    setAcceptDrops(true);
    setAnimated(false); // What is asked for is there at once.
    resize(FirstSize);
}

void MainWindow::makeDocks()
{
    m_infoDock->setObjectName(QStringLiteral("InfoDock"));
    m_infoDock->setWidget(m_info);
    addDockWidget(Qt::RightDockWidgetArea, m_infoDock);
    m_reportDock->setObjectName(QStringLiteral("ReportDock"));
    m_reportDock->setWidget(m_report);
    addDockWidget(Qt::BottomDockWidgetArea, m_reportDock);
    m_reportDock->hide();
    resizeDocks({m_infoDock}, {InfoWidth}, Qt::Horizontal);
}

void MainWindow::makeStatusBar()
{
    statusBar()->addPermanentWidget(m_search);
    statusBar()->addPermanentWidget(m_status);
    statusBar()->addPermanentWidget(m_counts);
}

void MainWindow::makeMenus()
{
    for (const PanelActions::Group group : PanelActions::groups()) {
        QMenu *menu = menuBar()->addMenu(QString());
        menu->addActions(m_actions->actions(group));
        if (group == PanelActions::Group::File)
            menu->insertMenu(m_actions->action(Id::SaveCopy), m_recent);
        if (group != PanelActions::Group::View)
            continue;
        m_skinMenu = menu->addMenu(QString());
        auto *skins = new QActionGroup(this);
        for (const Id id : {Id::SkinDark, Id::SkinLight}) {
            menu->removeAction(m_actions->action(id));
            m_skinMenu->addAction(skins->addAction(m_actions->action(id)));
            m_actions->action(id)->setCheckable(true);
        }
        m_languageMenu = menu->addMenu(QString());
        auto *languages = new QActionGroup(this);
        for (const Languages::Language &language : Languages::available()) {
            QAction *one = languages->addAction(m_languageMenu->addAction(language.name));
            one->setCheckable(true);
            one->setData(language.code);
        }
        connect(languages, &QActionGroup::triggered, this, [this](const QAction *one) {
            m_memory->setLanguage(one->data().toString());
            m_languages->setCurrent(one->data().toString());
        });
    }
}

void MainWindow::connectActions()
{
    const auto on = [this](Id id, auto deed) {
        connect(m_actions->action(id), &QAction::triggered, this, deed);
    };
    on(Id::NewProject, &MainWindow::chooseNewProject);
    on(Id::OpenProject, &MainWindow::chooseProject);
    on(Id::SaveCopy, &MainWindow::chooseCopy);
    on(Id::CloseProject, [this] { closeProject(); });
    on(Id::Quit, &QWidget::close);
    on(Id::Shortcuts, &MainWindow::showShortcuts);
    on(Id::About, &MainWindow::showAbout);
    on(Id::SkinDark, [] { NxSkinStyle::instance()->setSkin(NxSkin::Dark); });
    on(Id::SkinLight, [] { NxSkinStyle::instance()->setSkin(NxSkin::Light); });
    on(Id::ShowFolders, [this](bool shown) {
        m_memory->setShown(Part::Folders, shown);
        m_panel->setFoldersShown(shown);
    });
    for (const Id id : {Id::ShowFolders, Id::ShowInfo, Id::ShowReport})
        m_actions->action(id)->setCheckable(true);
    const auto tie = [this](QDockWidget *dock, Id id, Part part) {
        QAction *action = m_actions->action(id);
        connect(action, &QAction::triggered, dock, &QWidget::setVisible);
        connect(dock, &QDockWidget::visibilityChanged, this, [=] {
            action->setChecked(!dock->isHidden());
            if (isVisible())
                m_memory->setShown(part, !dock->isHidden());
        });
    };
    tie(m_infoDock, Id::ShowInfo, Part::Info);
    tie(m_reportDock, Id::ShowReport, Part::Report);
}

void MainWindow::connectParts()
{
    connect(m_holder.get(), &ProjectHolder::sigOpened, this, &MainWindow::showProject);
    connect(m_holder.get(), &ProjectHolder::sigAboutToClose, this, &MainWindow::leaveProject);
    connect(m_holder.get(), &ProjectHolder::sigClosed, this, &MainWindow::updateTitle);
    connect(m_recent, &RecentMenu::sigOpen, this, &MainWindow::openProject);
    connect(m_start, &StartPage::sigOpen, this, &MainWindow::openProject);
    connect(m_deeds.get(), &WindowDeeds::sigTold, this, &MainWindow::tell);
    // Once the drop is over: the views that it came to let go of their project.
    connect(m_deeds.get(), &WindowDeeds::sigOpenWanted, this, &MainWindow::openProject,
            Qt::QueuedConnection);
    connect(m_desk, &ImportDesk::sigFinished, this, &MainWindow::finishImport);
    connect(m_desk, &ImportDesk::sigReportChanged, this, &MainWindow::showTrouble);
    connect(m_status, &ImportStatus::sigShowReport, m_reportDock, &QWidget::show);
    connect(m_report, &ImportReportView::sigShowMedia, m_deeds.get(), &WindowDeeds::showFile);
    connect(m_report, &ImportReportView::sigRevealFile, m_files, &FileManager::reveal);
    connect(m_search, &MissingSearch::sigFinished, this,
            [this](const QString &summary, const QStringList &details) {
                tell(summary);
                if (!details.isEmpty())
                    NMessageDialog::Infomation(
                        this, {}, summary + QLatin1Char('\n') + details.join(QLatin1Char('\n')));
            });
    const NxMediaPanelBinder *binder = m_panel->binder();
    connect(binder, &NxMediaPanelBinder::sigShownChanged, this, &MainWindow::rememberShown);
    connect(binder, &NxMediaPanelBinder::sigSelectionChanged, this, [this] {
        const NxMediaItemManagerPresenter *items = m_panel->binder()->items();
        m_info->setMedia(items ? items->selectedItems() : QList<INxAbstractMedia *>(),
                         m_holder->project());
    });
    connect(m_panel, &PanelView::sigListedChanged, this, &MainWindow::updateCounts);
}

// What the panel offers on a media and on a folder.
void MainWindow::connectContextMenus()
{
    auto *mediaMenu = new MediaMenu(
        m_actions, MediaMenu::Subject::Media,
        [this] {
            return MediaMenu::Selection{m_panel->binder()->selection(), m_holder->isReadOnly()};
        },
        this);
    connect(mediaMenu, &MediaMenu::sigSynchroniseWanted, this, [this] {
        if (NxMediaItemManagerPresenter *items = m_panel->binder()->items())
            items->startAudioSyn(m_panel->binder()->selection());
    });
    connect(m_panel->view(), &NxMediaItemView::sigMenuWanted, mediaMenu,
            [mediaMenu](const QPoint &place) { mediaMenu->popup(place); });
    auto *folderMenu = new MediaMenu(
        m_actions, MediaMenu::Subject::Folder,
        [this] {
            const NxFolderMediaManagerPresenter *folders = m_panel->binder()->folders();
            INxFolderMedia *folder = folders ? folders->currentFolder() : nullptr;
            return MediaMenu::Selection{folder ? QList<INxAbstractMedia *>{folder}
                                               : QList<INxAbstractMedia *>(),
                                        m_holder->isReadOnly()};
        },
        this);
    connect(m_panel->tree(), &NxFolderTreeView::sigContextMenu, folderMenu,
            [folderMenu](const QPoint &place) { folderMenu->popup(place); });
}

void MainWindow::connectMemory()
{
    const NxFolderTreeView *tree = m_panel->tree();
    connect(tree, &QTreeView::expanded, this, &MainWindow::saveExpanded);
    connect(tree, &QTreeView::collapsed, this, &MainWindow::saveExpanded);
    m_columnsSoon.setSingleShot(true);
    m_columnsSoon.setInterval(ColumnsMsec);
    connect(&m_columnsSoon, &QTimer::timeout, this, &MainWindow::saveColumns);
    const QHeaderView *columns = m_panel->view()->columnHeader();
    const auto columnsChanged = [this] { m_columnsSoon.start(); };
    connect(columns, &QHeaderView::sectionResized, this, columnsChanged);
    connect(columns, &QHeaderView::sectionMoved, this, columnsChanged);
}
// Events

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(closeProject());
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    const bool isOurs = qobject_cast<const NxMediaItemMimeData *>(event->mimeData());
    event->setAccepted(!isOurs && !ImportDesk::pathsOf(event->mimeData()).isEmpty());
}

void MainWindow::dropEvent(QDropEvent *event)
{
    const QStringList paths = ImportDesk::pathsOf(event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    m_deeds->takeIn(nullptr, paths);
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

void MainWindow::retranslate()
{
    m_actions->retranslate();
    m_deeds->updateHistory();
    const QList<QAction *> menus = menuBar()->actions();
    const QList<PanelActions::Group> groups = PanelActions::groups();
    for (int i = 0; i < groups.size() && i < menus.size(); ++i)
        menus.at(i)->setText(PanelActions::title(groups.at(i)));
    m_skinMenu->setTitle(tr("S&kin"));
    m_languageMenu->setTitle(tr("La&nguage"));
    const QList<QAction *> languages = m_languageMenu->actions();
    for (QAction *language : languages)
        language->setChecked(language->data() == m_languages->current());
    m_infoDock->setWindowTitle(tr("Information"));
    m_reportDock->setWindowTitle(tr("Import Report"));
    updateTitle();
}
