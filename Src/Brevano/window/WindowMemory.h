// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>
#include <NxWidgets/NxSkin.h>

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <optional>

class INxSettingsStore;
class QHeaderView;
class QMainWindow;
class QSplitter;

/// What the window remembers from one start of the program to the next: how it looked, and where
/// the user was in each project.
///
/// Everything is written at once, except where the user is in a project: that changes with every
/// step through the folders and is written when the steps have paused, at flush(), and at the end.
/// A stored value that makes no sense counts as none. GUI thread only.
class WindowMemory
{
public:
    /// The parts of the window that can be hidden.
    enum class Part { Folders, Info, Report };

    static constexpr int LongestRecentList = 10;
    static constexpr int MostProjects = 20; ///< Whose folders are remembered.

    /// Keeps everything in the store; null is the user's ini file.
    explicit WindowMemory(std::unique_ptr<INxSettingsStore> store = nullptr);
    ~WindowMemory();

    /// Size, place, docks and tool bars.
    void saveWindow(const QMainWindow &window);
    /// False when nothing usable is stored: the window is left as it is. A window that would lie
    /// outside all screens is brought back onto one.
    bool restoreWindow(QMainWindow *window) const;

    /// The widths of a splitter's panes; `name` tells the splitters of the window apart.
    void saveSplitter(const QString &name, const QSplitter &splitter);
    /// False when nothing is stored that fits the splitter: it is left as it is.
    bool restoreSplitter(const QString &name, QSplitter *splitter) const;

    /// Order, widths and visibility of columns.
    void saveHeader(const QString &name, const QHeaderView &header);
    /// False when nothing is stored that fits the header, which needs its model: it is left as it
    /// is.
    bool restoreHeader(const QString &name, QHeaderView *header) const;

    /// Folders and information are shown at first, the report is not.
    [[nodiscard]] bool isShown(Part part) const;
    void setShown(Part part, bool shown);

    /// NxSkin::Dark at first.
    [[nodiscard]] NxSkin skin() const;
    void setSkin(NxSkin skin);

    /// The code of the chosen language; empty: that of the system.
    [[nodiscard]] QString language() const;
    void setLanguage(const QString &code);

    /// Absolute paths, the latest first, those that are no longer there included.
    [[nodiscard]] QStringList recentProjects() const;
    void noteRecent(const QString &path);
    void forgetRecent(const QString &path);
    void clearRecent();

    /// NXVBLMODEL::mctMedia in a project that is not known.
    [[nodiscard]] NXVBLMODEL::NxMediaCategoryType category(const QString &project) const;
    void setCategory(const QString &project, NXVBLMODEL::NxMediaCategoryType category);
    /// The id of the folder that was shown last in a category; empty when none is known.
    [[nodiscard]] QString folder(const QString &project,
                                 NXVBLMODEL::NxMediaCategoryType category) const;
    void setFolder(const QString &project, NXVBLMODEL::NxMediaCategoryType category,
                   const QString &folderId);
    /// The ids of the folders that were open in the tree of a category, none if all were folded;
    /// no list when it is not known.
    [[nodiscard]] std::optional<QStringList> expandedFolders(
        const QString &project, NXVBLMODEL::NxMediaCategoryType category) const;
    void setExpandedFolders(const QString &project, NXVBLMODEL::NxMediaCategoryType category,
                            const QStringList &folderIds);

    /// Writes what waits.
    void flush();

private:
    Q_DISABLE_COPY_MOVE(WindowMemory)
    [[nodiscard]] QString text(const QString &key) const;
    void setBlob(const QString &key, const QByteArray &blob);
    [[nodiscard]] QByteArray blob(const QString &key) const;
    void setRecent(const QStringList &paths);
    void loadProjects();
    [[nodiscard]] QJsonObject project(const QString &path) const;
    void setProject(const QJsonObject &changed);

    const std::unique_ptr<INxSettingsStore> m_store;
    QList<QJsonObject> m_projects; // The latest first.
    QTimer m_writing; // Runs while projects wait to be written.
};
