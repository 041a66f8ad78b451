// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QString>

#include <functional>
#include <optional>

/// Whether files are there, without waiting for a disk where somebody knows already.
class NXCORE_EXPORT NxFile
{
public:
    /// Answers for the paths it knows, nothing for all others. Called on the thread that asks,
    /// without touching a disk.
    using Answerer = std::function<std::optional<bool>(const QString &path)>;

    /// Whether there is a file or folder of this path: the installed answerer's word, else a real
    /// look at the disk, which NxDiskBan notes. False for an empty path. From any thread.
    [[nodiscard]] static bool exists(const QString &path);

    /// The installed answerer's word, and nothing where it has none: never looks at a disk. For
    /// what is painted. From any thread.
    [[nodiscard]] static std::optional<bool> knownToExist(const QString &path);

    /// Installs the one answerer of the process, in place of the one before; an empty function
    /// takes it away. The engine installs one that knows the last state of every media of the
    /// open project.
    static void setAnswerer(Answerer answerer);
};
