// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxEngineProject.h>
#include <Support/NxTempDir.h>

#include <memory>

class NxEngineMedia;
class NxFootageReader;

/// A project in this process whose footage the real workers read, and a folder for that footage.
class WorkedProject
{
public:
    WorkedProject();
    ~WorkedProject();

    /// How the workers are run; to be changed before open().
    [[nodiscard]] NxWorkerSettings &settings() { return m_settings; }
    /// An empty project, all of whose footage is read.
    void open();
    void close();

    /// Copies a file of the fixture set into the folder; answers its path.
    [[nodiscard]] QString put(const char *recipe, const QString &name) const;
    /// Adds files by their paths alone, without a look at them.
    [[nodiscard]] QList<NxEngineMedia *> add(const QStringList &paths);
    [[nodiscard]] NxFootageReader *reader() const { return m_project->footageReader(); }
    [[nodiscard]] const NxTempDir &dir() const { return m_dir; }

private:
    Q_DISABLE_COPY_MOVE(WorkedProject)

    const NxTempDir m_dir;
    NxWorkerSettings m_settings;
    std::unique_ptr<NxEngineProject> m_project;
};
