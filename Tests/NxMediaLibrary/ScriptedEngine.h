// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxMediaEngine.h>

/// An engine with the project and the services that a test gives it. What is null is missing, as
/// in an engine that does not offer it.
struct ScriptedEngine final : INxMediaEngine
{
    INxProject *currentProject() override { return project; }
    INxMediaProxyService *proxyService() override
    {
        return proxies ? proxies : INxMediaEngine::proxyService();
    }
    INxAudioSyncService *audioSyncService() override
    {
        return audioSync ? audioSync : INxMediaEngine::audioSyncService();
    }
    INxBeatService *beatService() override { return beats ? beats : INxMediaEngine::beatService(); }
    INxSceneService *sceneService() override
    {
        return scenes ? scenes : INxMediaEngine::sceneService();
    }

    // Not owned.
    INxProject *project = nullptr;
    INxMediaProxyService *proxies = nullptr;
    INxAudioSyncService *audioSync = nullptr;
    INxBeatService *beats = nullptr;
    INxSceneService *scenes = nullptr;
};
