// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLModel/NxMediaTypes.h>
#include <NxWidgets/INxSkinEventHandler.h>

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <memory>

class FileManager;
class ImportDesk;
class ImportReportView;
class ImportStatus;
class InfoPanel;
class Languages;
class MediaMenu;
class MissingSearch;
class PanelActions;
class PanelView;
class ProjectHolder;
class QLabel;
class QStackedWidget;
class RecentMenu;
class ShortcutSheet;
class StartPage;
class VisibleFirst;
class WindowDeeds;
class WindowMemory;

/// The window of the program: one project, its media panel, the information about what is selected
/// and the report of the last import.
///
/// What the user arranges comes back with the next start. Closing the window closes the project.
class MainWindow : public QMainWindow, private INxSkinEventHandler
{
    Q_OBJECT
public:
    /// @param memory not owned; outlives the window.
    explicit MainWindow(WindowMemory *memory, const NxEmbeddedEngine::Options &options = {},
                        QWidget *parent = nullptr);
    ~MainWindow() override;

    /// True when the project is open afterwards; why not is told in a dialog.
    bool openProject(const QString &path);
    bool createProject(const QString &path);
    /// Into the folder that is shown.
    void importPaths(const QStringList &paths);
    /// False when not all could be written, which was told, and the project stays open.
    bool closeProject();

    [[nodiscard]] ProjectHolder *holder() const { return m_holder.get(); }
    [[nodiscard]] PanelView *panel() const { return m_panel; }
    [[nodiscard]] PanelActions *actions() const { return m_actions; }
    [[nodiscard]] ImportDesk *desk() const { return m_desk; }
    [[nodiscard]] InfoPanel *info() const { return m_info; }
    [[nodiscard]] ImportReportView *report() const { return m_report; }
    [[nodiscard]] WindowDeeds *deeds() const { return m_deeds.get(); }
    [[nodiscard]] Languages *languages() const { return m_languages.get(); }

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void OnSkinChangedEvent(INxSkinEvent *event) override;

    void layOut();
    void makeDocks();
    void makeMenus();
    void makeStatusBar();
    void connectParts();
    void connectContextMenus();
    void connectMemory();
    void connectActions();
    void restoreLook();
    void save();

    void showProject();
    void leaveProject();
    void restoreFolders();
    void rememberShown();
    void restoreCategory();
    void saveExpanded();
    void saveColumns();
    void updateTitle();
    void updateCounts();
    void tell(const QString &text);
    void chooseProject();
    void chooseNewProject();
    void chooseCopy();
    void showShortcuts();
    void showAbout();
    void finishImport();
    void showTrouble();
    void retranslate();

    WindowMemory *const m_memory; // Not owned.
    const std::unique_ptr<Languages> m_languages;
    const std::unique_ptr<ProjectHolder> m_holder;
    PanelActions *const m_actions; // Children, as the next ones.
    ImportDesk *const m_desk;
    FileManager *const m_files;
    PanelView *const m_panel;
    StartPage *const m_start;
    QStackedWidget *const m_pages;
    QLabel *const m_warning; // Why nothing can be changed, and what is damaged.
    InfoPanel *const m_info;
    ImportReportView *const m_report;
    QDockWidget *const m_infoDock;
    QDockWidget *const m_reportDock;
    MissingSearch *const m_search;
    ImportStatus *const m_status;
    QLabel *const m_counts;
    RecentMenu *const m_recent;
    VisibleFirst *const m_visibleFirst;
    QMenu *m_languageMenu = nullptr;
    QMenu *m_skinMenu = nullptr;
    QPointer<ShortcutSheet> m_shortcuts;
    const std::unique_ptr<WindowDeeds> m_deeds;
    NXVBLMODEL::NxMediaCategoryType m_shownCategory = NXVBLMODEL::mctNone;
    bool m_isTroubleShown = false; // Of the last import.
    QTimer m_columnsSoon;
};
