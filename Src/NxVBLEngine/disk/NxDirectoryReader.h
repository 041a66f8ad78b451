// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QString>

#include <functional>
#include <vector>

/// One name in a folder.
struct NxDirectoryEntry
{
    enum class Kind {
        File,
        Folder,
        Special, ///< A FIFO, a socket or a device.
        Dangling, ///< A link that leads nowhere.
    };

    QString name; ///< For a name that is not valid text: how it can be shown.
    Kind kind = Kind::File; ///< Of what a link leads to.
    bool isLink = false;
    bool isHidden = false;
    bool isValidText = true; ///< False: nothing can be done with this name but show it.
};

struct NxDirectoryListing
{
    std::vector<NxDirectoryEntry> files; ///< Everything that is no folder.
    std::vector<NxDirectoryEntry> folders;
    QString error; ///< The system's words when the folder could not be read (to the end).
};

/// Lists folders with all names that are in them. May wait for a disk: disk thread only.
namespace NxDirectoryReader {

/// Each list in the order of the names with case folded, equal ones in the order of their code
/// units. `goOn` is asked for every name; when it says no, what was read so far is answered.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT NxDirectoryListing read(
    const QString &path, const std::function<bool()> &goOn);

/// Puts entries into the order of listings.
void sort(std::vector<NxDirectoryEntry> *entries);

} // namespace NxDirectoryReader
