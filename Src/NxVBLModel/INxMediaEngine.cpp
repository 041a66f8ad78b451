// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaEngine.h>

#include <NxCore/NxLog.h>

#include <array>

namespace {

// Bits of what was noted, and rows of the names below.
enum Offer {
    offersNewProjects,
    offersOpening,
    offersClosing,
    offersCurrentProject,
    offersClips,
    offersTimelines,
    offersPictures,
    offersProxies,
    offersAudioSync,
    offersBeats,
    offersScenes,
    offersCloud,
    offersCollector,
    offersTracking,
    offerCount,
};

constexpr std::array<const char *, offerCount> OfferNames = {
    "new projects",
    "opening of projects",
    "closing of projects",
    "current project",
    "video clips",
    "timelines",
    "pictures",
    "proxy service",
    "audio synchronisation",
    "beat detection",
    "scene detection",
    "cloud resources",
    "collector of user actions",
    "usage events",
};

} // namespace

INxMediaEngine::~INxMediaEngine() = default;

void INxMediaEngine::noteMissing(int offer, const char *function)
{
    const unsigned bit = 1U << unsigned(offer);
    if (m_noted & bit)
        return;
    m_noted |= bit;
    NX_LOG_INFO_AS(function, "the media engine offers no %s", OfferNames[size_t(offer)]);
}

NxResult<INxProject *> INxMediaEngine::createProject(const QString &path)
{
    noteMissing(offersNewProjects, "INxMediaEngine::createProject");
    return NxError{QStringLiteral("%1: this media engine makes no project files").arg(path)};
}

NxResult<INxProject *> INxMediaEngine::openProject(const QString &path, NxProjectOpenMode)
{
    noteMissing(offersOpening, "INxMediaEngine::openProject");
    return NxError{QStringLiteral("%1: this media engine opens no project files").arg(path)};
}

NxResult<void> INxMediaEngine::closeProject()
{
    if (!currentProject())
        return {};
    noteMissing(offersClosing, "INxMediaEngine::closeProject");
    return NxError{QStringLiteral("This media engine keeps its project open")};
}

INxProject *INxMediaEngine::currentProject()
{
    noteMissing(offersCurrentProject, "INxMediaEngine::currentProject");
    return nullptr;
}

INxClip *INxMediaEngine::createVideoClip(const QString &)
{
    noteMissing(offersClips, "INxMediaEngine::createVideoClip");
    return nullptr;
}

INxTimeline *INxMediaEngine::createTimeline(INxClip *)
{
    noteMissing(offersTimelines, "INxMediaEngine::createTimeline");
    return nullptr;
}

INxBsThumbManager *INxMediaEngine::createThumbManager()
{
    noteMissing(offersPictures, "INxMediaEngine::createThumbManager");
    return nullptr;
}

INxMediaProxyService *INxMediaEngine::proxyService()
{
    noteMissing(offersProxies, "INxMediaEngine::proxyService");
    return nullptr;
}

INxAudioSyncService *INxMediaEngine::audioSyncService()
{
    noteMissing(offersAudioSync, "INxMediaEngine::audioSyncService");
    return nullptr;
}

INxBeatService *INxMediaEngine::beatService()
{
    noteMissing(offersBeats, "INxMediaEngine::beatService");
    return nullptr;
}

INxSceneService *INxMediaEngine::sceneService()
{
    noteMissing(offersScenes, "INxMediaEngine::sceneService");
    return nullptr;
}

INxCloudResourceService *INxMediaEngine::cloudService()
{
    noteMissing(offersCloud, "INxMediaEngine::cloudService");
    return nullptr;
}

INxCloudResourceUserActionCollector *INxMediaEngine::collector()
{
    noteMissing(offersCollector, "INxMediaEngine::collector");
    return nullptr;
}

void INxMediaEngine::trackEvent(const NxTrackEvent &)
{
    noteMissing(offersTracking, "INxMediaEngine::trackEvent");
}
