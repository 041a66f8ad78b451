// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CommandTable.h>

#include <Brevano/commands/BackupCommand.h>
#include <Brevano/commands/CheckCommand.h>
#include <Brevano/commands/HistoryCommand.h>
#include <Brevano/commands/ImportCommand.h>
#include <Brevano/commands/InfoCommand.h>
#include <Brevano/commands/ListCommand.h>
#include <Brevano/commands/MkdirCommand.h>
#include <Brevano/commands/MoveCommand.h>
#include <Brevano/commands/RelinkCommand.h>
#include <Brevano/commands/RemoveCommand.h>
#include <Brevano/commands/RenameCommand.h>
#include <Brevano/commands/RereadCommand.h>
#include <Brevano/commands/UnusedCommand.h>

#include <algorithm>

namespace {

template<typename T>
std::unique_ptr<Command> make()
{
    return std::make_unique<T>();
}

std::unique_ptr<Command> makeUndo()
{
    return std::make_unique<HistoryCommand>(HistoryCommand::Direction::Undo);
}

std::unique_ptr<Command> makeRedo()
{
    return std::make_unique<HistoryCommand>(HistoryCommand::Direction::Redo);
}

using namespace CommandOptions;

constexpr int any = CommandEntry::AnyNumber;

QVector<CommandEntry> table{
    {"import",
     {"PROJECT FILE|FOLDER..."},
     "Brings files into a project, which is made when it is not there. A folder is taken with\n"
     "everything in it that can be imported, and becomes a folder of the project. What is in the\n"
     "files is read, too.",
     {into, section, noRead, json},
     2,
     any,
     make<ImportCommand>},
    {"list",
     {"PROJECT"},
     "Lists what the panel shows of a project, of all its folders or of one: media, headers of\n"
     "groups, and the tile that imports. What is not said is as the user chose it last.\n"
     "Keys to sort by: none, name, duration, datecreated, used, framerate, inpoint, outpoint,\n"
     "favourite, favouritetime, downloadtime, resolution, audioinfo, type, new, category,\n"
     "listorder, sale. Keys to group by: none, type, datecreated, duration, cameraname, category.\n"
     "Types: all, video, photo, audio, subtitle, premium, standard, free, paid.",
     {folder, section, category, sort, desc, group, groupDesc, type, search, columns, json},
     1,
     1,
     make<ListCommand>},
    {"info",
     {"PROJECT NAME_OR_PATH"},
     "Shows what a media is: all that its file tells, and where its pictures lie. What is not\n"
     "read yet is read now.",
     {json},
     2,
     2,
     make<InfoCommand>},
    {"reread",
     {"PROJECT [NAME_OR_PATH...]"},
     "Reads the files of media once more and makes their pictures anew; without names, of all\n"
     "media that were not read yet, could not be read, or have no picture for another reason.",
     {json},
     1,
     any,
     make<RereadCommand>},
    {"mkdir",
     {"PROJECT FOLDER"},
     "Makes a folder, and those above it that are not there.",
     {section},
     2,
     2,
     make<MkdirCommand>},
    {"rename",
     {"PROJECT NAME_OR_PATH NEW_NAME", "PROJECT --folder FOLDER NEW_NAME"},
     "Gives a media or a folder another name. The file keeps its own.",
     {folder, section},
     2,
     3,
     make<RenameCommand>},
    {"move",
     {"PROJECT NAME_OR_PATH... --into FOLDER", "PROJECT --folder FOLDER --into FOLDER"},
     "Moves media or a folder into another folder. The files stay where they are.",
     {folder, into, section},
     1,
     any,
     make<MoveCommand>},
    {"remove",
     {"PROJECT NAME_OR_PATH...", "PROJECT --folder FOLDER"},
     "Takes media, or a folder with all that it holds, out of the project and its timelines. The\n"
     "files stay. What the panel asks first is answered by --yes or --no, or on the terminal.",
     {folder, section, yes, no},
     1,
     any,
     make<RemoveCommand>},
    {"relink",
     {"PROJECT NAME_OR_PATH --to FILE", "PROJECT [NAME_OR_PATH...] --search FOLDER"},
     "Gives media their files again: one by a file of the same length; or those that are missing\n"
     "by a folder, in which they are recognised by their contents, else by name, size and length.",
     {to, searchFolder, noRead, json},
     1,
     any,
     make<RelinkCommand>},
    {"unused",
     {"PROJECT"},
     "Lists the media that no timeline uses, and removes them from the project if wanted.",
     {folder, section, removeUnused, yes, no, json},
     1,
     1,
     make<UnusedCommand>},
    {"undo", {"PROJECT"}, "Takes back the last change.", {}, 1, 1, makeUndo},
    {"redo", {"PROJECT"}, "Does again what was taken back last.", {}, 1, 1, makeRedo},
    {"check",
     {"PROJECT"},
     "Checks the project file, and looks whether the files of its media are there.",
     {json},
     1,
     1,
     make<CheckCommand>},
    {"backup",
     {"PROJECT FILE"},
     "Writes a copy of the project to a new file.",
     {},
     2,
     2,
     make<BackupCommand>},
};

} // namespace

const QVector<CommandEntry> &CommandTable::entries()
{
    return table;
}

void CommandTable::add(const CommandEntry &entry)
{
    table.append(entry);
}

const CommandEntry *CommandTable::find(const QString &name)
{
    const QVector<CommandEntry> &all = entries();
    const auto found = std::find_if(all.cbegin(), all.cend(), [&name](const CommandEntry &entry) {
        return name == QLatin1String(entry.name);
    });
    return found == all.cend() ? nullptr : &*found;
}
