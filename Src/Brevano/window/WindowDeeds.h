// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/window/PanelActions.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <QList>
#include <QObject>
#include <QStringList>

class FileManager;
class ImportDesk;
class INxAbstractMedia;
class INxAbstractMediaItem;
class INxFolderMedia;
class INxProject;
class INxUndoStack;
class MissingSearch;
class PanelView;

/// What the actions about media and folders do in the panel.
class WindowDeeds : public QObject
{
    Q_OBJECT
public:
    /// None of them is owned; they outlive this object.
    WindowDeeds(PanelActions *actions, PanelView *panel, ImportDesk *desk, MissingSearch *search,
                FileManager *files);

    /// The project that is shown, not owned; null: none. Called before the project closes.
    void setProject(INxProject *project);
    /// Enables what can be done with what is selected.
    void updateActions();
    /// Undo and redo are called after what they would do.
    void updateHistory();
    /// Imports into a folder; null: the one that is shown.
    void import(INxFolderMedia *into, const QStringList &paths,
                NXVBLMODEL::NxMediaImportType kind = NXVBLMODEL::mitFiles);
    /// What was dropped: a project is opened, all else imported into the folder, as import() does.
    void takeIn(INxFolderMedia *into, const QStringList &paths);
    void chooseFiles();
    void chooseFolder();
    /// Goes to the media of a file that is in the project.
    void showFile(const QString &path);
    void addToTimeline(const QList<INxAbstractMedia *> &medias);

Q_SIGNALS:
    /// A sentence for the status bar.
    void sigTold(const QString &text);
    /// A project was dropped onto the panel.
    void sigOpenWanted(const QString &path);

private:
    using Id = PanelActions::Id;
    using Deed = void (WindowDeeds::*)();

    void connectActions();
    void paste();
    void copyNames();
    void copyPaths();
    void undo();
    void redo();
    void selectAll();
    void selectNothing();
    void rename();
    void remove();
    void removeUnused();
    void newFolder();
    void larger();
    void smaller();
    void addSelection();
    void relink();
    void findMissing();
    void readAgain();
    void reveal();
    void findInFolder();

    [[nodiscard]] QList<INxAbstractMediaItem *> selectedItems() const;
    [[nodiscard]] INxUndoStack *history() const;
    void zoom(int steps);
    void copy(const QStringList &lines);

    PanelActions *const m_actions; // Not owned, as all below.
    PanelView *const m_panel;
    ImportDesk *const m_desk;
    MissingSearch *const m_search;
    FileManager *const m_files;
    INxProject *m_project = nullptr;
    QMetaObject::Connection m_historyConnection;
};
