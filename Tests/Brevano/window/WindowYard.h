// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/window/PanelActions.h>
#include <NxCore/INxSettingsStore.h>

#include <NxMediaLibrary/SettingYard.h>
#include <Support/NxTempDir.h>

#include <QColor>
#include <QHash>
#include <QKeySequence>
#include <QMimeData>
#include <QStringList>

#include <memory>

class INxAbstractMedia;
class INxAbstractMediaItem;
class INxFolderMedia;
class INxProject;
class MainWindow;
class NxFolderTreeView;
class NxMediaItemManagerPresenter;
class NxMediaItemView;
class PanelView;
class QMenu;
class WindowMemory;

/// The window of the program, which a user works with, over settings and a memory that last from
/// one start to the next, and files of its own. What goes wrong on the way fails the test function.
class WindowYard
{
public:
    /// What workers do with the footage.
    enum class Reading {
        Nothing, ///< Only what they are asked to.
        Everything, ///< They read each file, and make its pictures.
    };
    static constexpr int Patience = 60'000; // ms

    explicit WindowYard(Reading reading = Reading::Nothing);
    ~WindowYard();

    /// A new start of the program, without a project; ends the one before.
    void start();
    /// Closes the window as its user does.
    void end();
    /// Makes the project "film.brevano", or opens it when it is there.
    void openFilm();
    /// A new start of the program with that project.
    void restart();
    [[nodiscard]] QString film() const { return dir.filePath(QStringLiteral("film.brevano")); }

    [[nodiscard]] MainWindow *window() const { return m_window.get(); }
    [[nodiscard]] PanelView *panel() const;
    [[nodiscard]] NxMediaItemView *view() const;
    [[nodiscard]] NxFolderTreeView *tree() const;
    [[nodiscard]] NxMediaItemManagerPresenter *items() const;
    [[nodiscard]] INxProject *project() const;
    /// The project's media.
    [[nodiscard]] INxFolderMedia *section() const;
    [[nodiscard]] WindowMemory *memory() const { return m_memory.get(); }
    [[nodiscard]] QAction *action(PanelActions::Id id) const;

    /// The path of a small picture of one colour, which no other has.
    QString picture(const QString &name, const QColor &colour = Qt::red) const;
    /// The path of a copy of the footage of this recipe, in the folder "footage".
    [[nodiscard]] QString footage(const char *recipe) const;
    /// Has files imported and waits for the end.
    void import(const QStringList &paths, INxFolderMedia *into = nullptr) const;
    /// Waits until all footage was read and has its pictures.
    void readAll() const;
    INxFolderMedia *addFolder(const QString &name) const;

    /// Null when nobody is called so.
    [[nodiscard]] INxAbstractMediaItem *media(const QString &name) const;
    /// What the view lists from top to bottom: the names of media, and those of groups in brackets.
    [[nodiscard]] QStringList rows() const;
    /// The names of the selected media, as view and presenter know them; with a remark in front
    /// when these are different ones.
    [[nodiscard]] QStringList selection() const;
    /// The name of the folder that tree, presenter and list show; all names when they differ.
    [[nodiscard]] QString shownFolder() const;
    /// The row of a media, or of a group in brackets, in the viewport.
    [[nodiscard]] QRect rect(const QString &name) const;
    /// What the status bar says.
    [[nodiscard]] QString told() const;
    /// Whether this stands at the right of the status bar.
    [[nodiscard]] bool says(const QString &text) const;

    void click(const QString &name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void doubleClick(const QString &name) const;
    /// Clicks on a folder of the tree.
    void pick(INxFolderMedia *folder) const;
    /// The middle of a folder's row.
    [[nodiscard]] QPoint folderAt(INxFolderMedia *folder) const;
    /// Presses keys where the keyboard focus is.
    void press(const QKeySequence &keys) const;
    /// Types where the keyboard focus is.
    void type(const QString &text) const;
    /// Opens the menu that an action stands in with the mouse, and clicks on the action.
    void choose(PanelActions::Id id) const;
    /// Clicks on an entry of a menu of the tools: "sort", "group", "type".
    void choose(const char *tool, const QString &entry) const;
    /// Files that are dragged in from elsewhere.
    [[nodiscard]] static std::unique_ptr<QMimeData> files(const QStringList &paths);
    /// Drops onto a widget; whether it was taken.
    static bool drop(QWidget *target, const QPoint &at, const QMimeData &data,
                     Qt::DropActions actions = Qt::CopyAction);
    /// Makes the window the active one: no window manager does it here when a dialog went.
    void comeForward() const;

    /// What the window remembers, as it is stored.
    [[nodiscard]] QHash<QString, QVariant> &remembered() { return m_remembered; }

    const NxTempDir dir;

private:
    /// Settings that the yard keeps.
    class Store;

    [[nodiscard]] bool clickEntry(QMenu *menu, QAction *entry) const;

    QHash<QString, QVariant> m_config;
    QHash<QString, QVariant> m_appSettings;
    QHash<QString, QVariant> m_remembered;
    const SettingYard m_settings;
    const Reading m_reading;
    std::unique_ptr<WindowMemory> m_memory;
    std::unique_ptr<MainWindow> m_window;
};
