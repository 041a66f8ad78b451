// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QString>

class INxAudioSyncService;
class INxBeatService;
class INxBsThumbManager;
class INxClip;
class INxCloudResourceService;
class INxCloudResourceUserActionCollector;
class INxMediaProxyService;
class INxProject;
class INxSceneService;
class INxTimeline;
class NxTrackEvent;

/// How a project is opened.
enum class NxProjectOpenMode {
    ReadWrite, ///< To change it; a project that another process holds is then shown read-only.
    ReadOnly,
};

/// Everything behind the media model's static entries, in one interface.
///
/// An editor that brings its own media model implements this and installs it with a
/// NxMediaEngineDoor. Each function has a default that answers nothing (null, or an error that
/// says so) and notes once per engine, as an informational line of the log, what the engine does
/// not offer. What is answered is owned by the engine unless said. GUI thread only.
class NXVBLMODEL_EXPORT INxMediaEngine
{
public:
    virtual ~INxMediaEngine();

    /// Makes a new project file and opens it. Refused where a file stands already.
    virtual NxResult<INxProject *> createProject(const QString &path);
    /// Opens a project, which becomes the current one. The project before it must be closed.
    virtual NxResult<INxProject *> openProject(const QString &path, NxProjectOpenMode mode);
    /// Closes the current project after everything is on disk. Refused, with a log line, while
    /// observers are registered with its managers. Done at once when no project is open.
    virtual NxResult<void> closeProject();
    [[nodiscard]] virtual INxProject *currentProject();

    /// The caller owns the clip.
    [[nodiscard]] virtual INxClip *createVideoClip(const QString &path);
    /// Takes the clip over; the caller owns the timeline.
    [[nodiscard]] virtual INxTimeline *createTimeline(INxClip *clip);
    /// The caller owns the handle.
    [[nodiscard]] virtual INxBsThumbManager *createThumbManager();
    [[nodiscard]] virtual INxMediaProxyService *proxyService();
    [[nodiscard]] virtual INxAudioSyncService *audioSyncService();
    [[nodiscard]] virtual INxBeatService *beatService();
    [[nodiscard]] virtual INxSceneService *sceneService();
    [[nodiscard]] virtual INxCloudResourceService *cloudService();
    [[nodiscard]] virtual INxCloudResourceUserActionCollector *collector();
    virtual void trackEvent(const NxTrackEvent &event);

private:
    void noteMissing(int offer, const char *function);

    unsigned m_noted = 0; // One bit per offer that was noted as missing.
};
