// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/PanelActions.h>

#include <QAction>
#include <QKeySequence>
#include <QWidget>

#include <algorithm>
#include <iterator>

namespace {

using Id = PanelActions::Id;
using Group = PanelActions::Group;

struct Entry
{
    Id id;
    Group group;
    const char *text;
    const char *keys; // Portable text; empty: none.
};

constexpr Entry Entries[] = {
    {Id::NewProject, Group::File, QT_TRANSLATE_NOOP("PanelActions", "&New Project..."), "Ctrl+N"},
    {Id::OpenProject, Group::File, QT_TRANSLATE_NOOP("PanelActions", "&Open Project..."), "Ctrl+O"},
    {Id::SaveCopy, Group::File, QT_TRANSLATE_NOOP("PanelActions", "Save a &Copy..."),
     "Ctrl+Shift+S"},
    {Id::CloseProject, Group::File, QT_TRANSLATE_NOOP("PanelActions", "C&lose Project"), "Ctrl+W"},
    {Id::ImportFiles, Group::File, QT_TRANSLATE_NOOP("PanelActions", "&Import Files..."), "Ctrl+I"},
    {Id::ImportFolder, Group::File, QT_TRANSLATE_NOOP("PanelActions", "Import &Folder..."),
     "Ctrl+Shift+I"},
    {Id::Quit, Group::File, QT_TRANSLATE_NOOP("PanelActions", "&Quit"), "Ctrl+Q"},
    {Id::Undo, Group::Edit, QT_TRANSLATE_NOOP("PanelActions", "&Undo"), "Ctrl+Z"},
    {Id::Redo, Group::Edit, QT_TRANSLATE_NOOP("PanelActions", "&Redo"), "Ctrl+Shift+Z"},
    {Id::CopyName, Group::Edit, QT_TRANSLATE_NOOP("PanelActions", "&Copy Name"), "Ctrl+C"},
    {Id::CopyPath, Group::Edit, QT_TRANSLATE_NOOP("PanelActions", "Copy &Path"), "Ctrl+Shift+C"},
    {Id::Paste, Group::Edit, QT_TRANSLATE_NOOP("PanelActions", "Pas&te"), "Ctrl+V"},
    {Id::SelectAll, Group::Edit, QT_TRANSLATE_NOOP("PanelActions", "Select &All"), "Ctrl+A"},
    {Id::ClearSelection, Group::Edit, QT_TRANSLATE_NOOP("PanelActions", "Select &Nothing"),
     "Ctrl+Shift+A"},
    {Id::Rename, Group::Edit, QT_TRANSLATE_NOOP("PanelActions", "R&ename"), "F2"},
    {Id::Remove, Group::Edit, QT_TRANSLATE_NOOP("PanelActions", "&Delete from Project"), "Del"},
    {Id::RemoveUnused, Group::Edit, QT_TRANSLATE_NOOP("PanelActions", "Delete Unu&sed Media..."),
     ""},
    {Id::NewFolder, Group::Edit, QT_TRANSLATE_NOOP("PanelActions", "New F&older"), "Ctrl+Shift+N"},
    {Id::Find, Group::View, QT_TRANSLATE_NOOP("PanelActions", "&Search"), "Ctrl+F"},
    {Id::ClearFilters, Group::View, QT_TRANSLATE_NOOP("PanelActions", "&Clear Filters"),
     "Ctrl+Shift+F"},
    {Id::ViewList, Group::View, QT_TRANSLATE_NOOP("PanelActions", "&List"), "Ctrl+1"},
    {Id::ViewSmall, Group::View, QT_TRANSLATE_NOOP("PanelActions", "Small Thumb&nails"), "Ctrl+2"},
    {Id::ViewMiddle, Group::View, QT_TRANSLATE_NOOP("PanelActions", "&Medium Thumbnails"),
     "Ctrl+3"},
    {Id::ViewLarge, Group::View, QT_TRANSLATE_NOOP("PanelActions", "La&rge Thumbnails"), "Ctrl+4"},
    {Id::LargerTiles, Group::View, QT_TRANSLATE_NOOP("PanelActions", "Lar&ger"), "Ctrl++"},
    {Id::SmallerTiles, Group::View, QT_TRANSLATE_NOOP("PanelActions", "Sm&aller"), "Ctrl+-"},
    {Id::SortDescending, Group::View, QT_TRANSLATE_NOOP("PanelActions", "Sort &Descending"),
     "Ctrl+D"},
    {Id::GroupDescending, Group::View, QT_TRANSLATE_NOOP("PanelActions", "Groups D&escending"),
     "Ctrl+G"},
    {Id::ShowFolders, Group::View, QT_TRANSLATE_NOOP("PanelActions", "&Folders"), "F7"},
    {Id::ShowInfo, Group::View, QT_TRANSLATE_NOOP("PanelActions", "&Information"), "F8"},
    {Id::ShowReport, Group::View, QT_TRANSLATE_NOOP("PanelActions", "Import Re&port"), "F9"},
    {Id::SkinDark, Group::View, QT_TRANSLATE_NOOP("PanelActions", "Dar&k"), ""},
    {Id::SkinLight, Group::View, QT_TRANSLATE_NOOP("PanelActions", "Ligh&t"), ""},
    {Id::AddToTimeline, Group::Media, QT_TRANSLATE_NOOP("PanelActions", "&Add to Timeline"),
     "Ctrl+T"},
    {Id::Relink, Group::Media, QT_TRANSLATE_NOOP("PanelActions", "Re&link..."), "Ctrl+L"},
    {Id::FindMissing, Group::Media, QT_TRANSLATE_NOOP("PanelActions", "Find &Missing Files..."),
     "Ctrl+Shift+L"},
    {Id::ReadAgain, Group::Media, QT_TRANSLATE_NOOP("PanelActions", "&Read Again"), "F5"},
    {Id::Reveal, Group::Media, QT_TRANSLATE_NOOP("PanelActions", "&Show in File Manager"),
     "Ctrl+Shift+R"},
    {Id::FindInFolder, Group::Media, QT_TRANSLATE_NOOP("PanelActions", "&Find in Folder"),
     "Ctrl+Shift+G"},
    {Id::Shortcuts, Group::Help, QT_TRANSLATE_NOOP("PanelActions", "&Keyboard Shortcuts"), "F1"},
    {Id::About, Group::Help, QT_TRANSLATE_NOOP("PanelActions", "&About Brevano"), ""},
};

struct Title
{
    Group group;
    const char *text;
};

constexpr Title Titles[] = {
    {Group::File, QT_TRANSLATE_NOOP("PanelActions", "&File")},
    {Group::Edit, QT_TRANSLATE_NOOP("PanelActions", "&Edit")},
    {Group::View, QT_TRANSLATE_NOOP("PanelActions", "&View")},
    {Group::Media, QT_TRANSLATE_NOOP("PanelActions", "&Media")},
    {Group::Help, QT_TRANSLATE_NOOP("PanelActions", "&Help")},
};

struct Step
{
    const char *name;
    const char *text;
};

constexpr Step Steps[] = {
    {"import", QT_TRANSLATE_NOOP("PanelActions", "Import")},
    {"importMedia", QT_TRANSLATE_NOOP("PanelActions", "Import")},
    {"addMediaItems", QT_TRANSLATE_NOOP("PanelActions", "Import")},
    {"deleteMediaItems", QT_TRANSLATE_NOOP("PanelActions", "Delete Media")},
    {"moveMediaItems", QT_TRANSLATE_NOOP("PanelActions", "Move Media")},
    {"renameMediaItem", QT_TRANSLATE_NOOP("PanelActions", "Rename Media")},
    {"relinkMedia", QT_TRANSLATE_NOOP("PanelActions", "Relink")},
    {"setFavourite", QT_TRANSLATE_NOOP("PanelActions", "Favorite")},
    {"addFolder", QT_TRANSLATE_NOOP("PanelActions", "New Folder")},
    {"deleteFolder", QT_TRANSLATE_NOOP("PanelActions", "Delete Folder")},
    {"moveFolder", QT_TRANSLATE_NOOP("PanelActions", "Move Folder")},
    {"renameFolder", QT_TRANSLATE_NOOP("PanelActions", "Rename Folder")},
    {"addClip", QT_TRANSLATE_NOOP("PanelActions", "Add to Timeline")},
    {"insertClip", QT_TRANSLATE_NOOP("PanelActions", "Add to Timeline")},
    {"addSplitScreen", QT_TRANSLATE_NOOP("PanelActions", "Add Split Screen")},
    {"addInnerClip", QT_TRANSLATE_NOOP("PanelActions", "Fill Split Screen")},
    {"addComposite", QT_TRANSLATE_NOOP("PanelActions", "Add Composite Timeline")},
    {"moveClip", QT_TRANSLATE_NOOP("PanelActions", "Move Clip")},
    {"removeClip", QT_TRANSLATE_NOOP("PanelActions", "Delete Clip")},
    {"removeInnerClip", QT_TRANSLATE_NOOP("PanelActions", "Delete Clip")},
    {"addTimeline", QT_TRANSLATE_NOOP("PanelActions", "New Timeline")},
    {"removeTimeline", QT_TRANSLATE_NOOP("PanelActions", "Delete Timeline")},
    {"renameTimeline", QT_TRANSLATE_NOOP("PanelActions", "Rename Timeline")},
};

} // namespace

PanelActions::PanelActions(QWidget *window) : QObject(window)
{
    for (const Entry &entry : Entries) {
        auto *action = new QAction(window);
        action->setShortcut(QKeySequence(QLatin1String(entry.keys), QKeySequence::PortableText));
        window->addAction(action);
        m_actions.insert(entry.id, action);
    }
    retranslate();
}

PanelActions::~PanelActions() = default;

QAction *PanelActions::action(Id id) const
{
    return m_actions.value(id);
}

QList<QAction *> PanelActions::actions(Group group) const
{
    QList<QAction *> found;
    for (const Entry &entry : Entries) {
        if (entry.group == group)
            found.append(action(entry.id));
    }
    return found;
}

QList<PanelActions::Group> PanelActions::groups()
{
    QList<Group> all;
    for (const Title &title : Titles)
        all.append(title.group);
    return all;
}

QString PanelActions::title(Group group)
{
    const auto *found = std::find_if(std::begin(Titles), std::end(Titles),
                                     [group](const Title &title) { return title.group == group; });
    return found == std::end(Titles) ? QString() : tr(found->text);
}

QString PanelActions::stepTitle(const QString &step)
{
    const auto *found = std::find_if(std::begin(Steps), std::end(Steps), [&step](const Step &one) {
        return step == QLatin1String(one.name);
    });
    return found == std::end(Steps) ? step : tr(found->text);
}

void PanelActions::retranslate()
{
    for (const Entry &entry : Entries)
        action(entry.id)->setText(tr(entry.text));
}
