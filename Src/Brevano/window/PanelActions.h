// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QObject>

class QAction;
class QWidget;

/// Everything a user can do in the window, by name: menus, buttons and shortcuts share the actions.
///
/// The texts are those of the language of now. What an action does is connected by the window.
class PanelActions : public QObject
{
    Q_OBJECT
public:
    enum class Id {
        NewProject,
        OpenProject,
        SaveCopy,
        CloseProject,
        Quit,
        ImportFiles,
        ImportFolder,
        Paste,
        CopyName,
        CopyPath,
        Undo,
        Redo,
        SelectAll,
        ClearSelection,
        Rename,
        Remove,
        RemoveUnused,
        NewFolder,
        Find,
        ClearFilters,
        ViewList,
        ViewSmall,
        ViewMiddle,
        ViewLarge,
        LargerTiles,
        SmallerTiles,
        SortDescending,
        GroupDescending,
        AddToTimeline,
        Relink,
        FindMissing,
        ReadAgain,
        Reveal,
        FindInFolder,
        ShowFolders,
        ShowInfo,
        ShowReport,
        SkinDark,
        SkinLight,
        Shortcuts,
        About,
    };
    /// Where an action stands in the menus and on the sheet of shortcuts.
    enum class Group { File, Edit, View, Media, Help };

    /// The actions belong to the window, whose shortcuts they are.
    explicit PanelActions(QWidget *window);
    ~PanelActions() override;

    [[nodiscard]] QAction *action(Id id) const;
    /// Those of a group, in their order.
    [[nodiscard]] QList<QAction *> actions(Group group) const;
    [[nodiscard]] static QList<Group> groups();
    [[nodiscard]] static QString title(Group group);

    /// What a step of the history is called, for "Undo %1": a text for the user for each name that
    /// the library and the engine give to steps; the name itself when it is unknown.
    [[nodiscard]] static QString stepTitle(const QString &step);

    /// The texts in the language of now.
    void retranslate();

private:
    QHash<Id, QAction *> m_actions; // Owned by the window.
};

[[nodiscard]] inline uint qHash(PanelActions::Id id, uint seed = 0)
{
    return ::qHash(int(id), seed);
}
