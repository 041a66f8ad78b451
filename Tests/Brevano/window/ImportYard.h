// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxVBLModel/INxMediaEngine.h>

#include <Brevano/window/ImportDesk.h>
#include <Support/NxTempDir.h>

class INxProject;

/// A project in a file, files to import, and the desk that imports them.
class ImportYard
{
public:
    /// Whether workers read what was imported.
    enum class Reading { Nothing, Everything };

    explicit ImportYard(Reading reading = Reading::Nothing);
    ~ImportYard();

    /// Closes the project and opens it again.
    void reopen(NxProjectOpenMode mode);
    /// The project's media.
    [[nodiscard]] INxFolderMedia *section() const;
    /// Starts an import into the section; it must be taken.
    void start(const QStringList &paths);
    /// The same, and waits for its end.
    void import(const QStringList &paths);

    /// Writes a picture that can be read; answers its path.
    [[nodiscard]] QString picture(const QString &name) const;
    /// Writes a file that is no picture, whatever its name says.
    [[nodiscard]] QString rubbish(const QString &name) const;
    [[nodiscard]] QString path(const QString &name) const { return dir.filePath(name); }

    const NxTempDir dir;
    INxProject *project = nullptr; // Not owned.
    ImportDesk desk;

private:
    void open(const NxResult<INxProject *> &opened);

    NxEmbeddedEngine m_engine;
};

/// Verdict and file name of each line of a report, as numbers and texts: "2 notes.xyz".
[[nodiscard]] QStringList linesOf(const NxImportReport &report);
