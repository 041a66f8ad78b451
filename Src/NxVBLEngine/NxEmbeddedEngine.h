// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLModel/INxMediaEngine.h>

#include <QString>
#include <QStringList>

#include <memory>

class NxEmbeddedEnginePrivate;

/// The media engine that comes with the library: projects are SQLite files of the user.
///
/// Install it with a NxMediaEngineDoor. Needs a QCoreApplication. GUI thread only; it brings its
/// own threads for the project file and for the disk.
class NXVBLENGINE_EXPORT NxEmbeddedEngine final : public INxMediaEngine
{
public:
    struct Options
    {
        /// Where backups of older projects go. Empty: the user's data folder.
        QString backupFolder;
        bool backups = true;
        /// Whether all footage of a project is read as soon as it is open. False: only what
        /// INxProject::footageService() is asked for.
        bool readsFootage = true;
        /// Where covers and film strips are kept; may be emptied at any time. Empty: the user's
        /// cache folder.
        QString pictureFolder;
        /// Programs that read footage side by side; 0: one per core.
        int workers = 0;
    };

    NxEmbeddedEngine();
    explicit NxEmbeddedEngine(const Options &options);
    ~NxEmbeddedEngine() override;

    NxResult<INxProject *> createProject(const QString &path) override;
    NxResult<INxProject *> openProject(const QString &path, NxProjectOpenMode mode) override;
    NxResult<void> closeProject() override;
    INxProject *currentProject() override;
    INxClip *createVideoClip(const QString &path) override;
    INxTimeline *createTimeline(INxClip *clip) override;
    INxBsThumbManager *createThumbManager() override;

    /// What could not be read when the current project was opened; empty when all could.
    [[nodiscard]] QString damage() const;
    /// Checks the current project: its file page by page, its rows against each other, its
    /// objects against each other. Empty when all is well. May take long.
    [[nodiscard]] QStringList integrityProblems();
    /// Looks at every file of the current project and waits for the answers: what is missing or
    /// unreadable says so afterwards. For scripts; a window learns of it by events.
    void refreshExistence();

private:
    const std::unique_ptr<NxEmbeddedEnginePrivate> d;
};
