// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <Support/NxTempDir.h>

#include <QKeySequence>
#include <QStringList>

#include <memory>

#include "MediaPanel.h"
#include "SettingYard.h"

class NxFolderMediaManagerPresenter;
class NxMediaItemManagerPresenter;
class NxMediaLibraryPresenter;

/// A new project in a file, and a window with the panel on it, which a user works with. The media
/// are sorted by name. What goes wrong on the way fails the test function.
class PanelYard
{
public:
    /// What workers do with the footage.
    enum class Reading {
        Nothing, ///< Only what they are asked to.
        Everything, ///< They read each file, and make its pictures.
    };

    explicit PanelYard(Reading reading = Reading::Nothing);
    ~PanelYard();

    /// Ends the program with the project open, and starts it again.
    void restart();
    /// The presenters go, the window stays and shows nothing.
    void leavePanel();
    /// The same, and the project file is closed.
    void close();
    /// Every folder, media and clip of the project file, as a new start of the program finds them.
    /// Closes the project.
    [[nodiscard]] QByteArray kept();
    /// The same of the open project.
    [[nodiscard]] QByteArray dump() const;

    [[nodiscard]] NxMediaItemManagerPresenter *items() const;
    [[nodiscard]] NxFolderMediaManagerPresenter *folders() const;
    /// The project's media.
    [[nodiscard]] INxFolderMedia *section() const;
    [[nodiscard]] INxUndoStack *undo() const;

    /// Imports files; names without a folder are of files that nobody has.
    void add(const QStringList &files, INxFolderMedia *into = nullptr) const;
    INxFolderMedia *addFolder(const QString &name) const;
    /// Has the disk looked at, so that the list knows which files are gone.
    void lookAtFiles();
    /// The same before anybody paints the rows: a file that nobody has looked for is one that
    /// workers are asked for, and what they answer stands in the project.
    void settleFiles();
    /// Null when nobody is called so.
    [[nodiscard]] INxAbstractMedia *media(const QString &name) const;

    /// The names of the media that the list shows, from top to bottom.
    [[nodiscard]] QStringList rows() const;
    /// The names of the selected media, as the list shows and the presenter knows them; with a
    /// remark in front when these are different ones.
    [[nodiscard]] QStringList selection() const;
    /// The name of the current folder, as the tree shows, the presenters know and the list shows
    /// it; all the names when these are different ones.
    [[nodiscard]] QString shownFolder() const;

    /// Clicks on the row of a media.
    void click(const QString &name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void doubleClick(const QString &name) const;
    /// Clicks on a folder of the tree.
    void pick(INxFolderMedia *folder) const;
    /// Presses keys where the keyboard focus is.
    void press(const QKeySequence &keys) const;
    /// Types into the field that has the focus, in place of what stands there, and confirms.
    void enter(const QString &text) const;

    const NxTempDir dir;
    NxEngineProject *project = nullptr; // Not owned; null once closed.
    std::unique_ptr<NxMediaLibraryPresenter> library;
    std::unique_ptr<MediaPanel> panel;

private:
    void open(bool isNew);
    void showPanel();
    void bringForward() const;
    void clickRow(const QString &name, void (*gesture)(QWidget *, Qt::KeyboardModifiers, QPoint),
                  Qt::KeyboardModifiers modifiers) const;

    const SettingYard m_settings;
    NxEmbeddedEngine m_engine;
    const NxMediaEngineDoor m_door;
};
