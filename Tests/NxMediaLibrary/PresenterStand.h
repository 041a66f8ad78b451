// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxAppSettings/NxAppSettings.h>
#include <NxCore/NxConfig.h>
#include <NxCore/NxMemorySettingsStore.h>
#include <NxCore/NxPresenter.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <memory>

#include "PresenterLog.h"
#include "ScriptedEngine.h"
#include "ScriptedLibrary.h"
#include "ScriptedProxies.h"
#include "ScriptedScene.h"
#include "SettingYard.h"

/// What presenters stand on: settings that begin empty and end with this object, an engine behind
/// the door, the editor's scene, a library, and one log of what is emitted and asked for.
struct PresenterStand
{
    PresenterStand()
    {
        NxConfig::Instance()->setStore(std::make_unique<NxMemorySettingsStore>());
        NxAppSettings::instance()->setStore(std::make_unique<NxMemorySettingsStore>());
        NxPresenter::registerScene(&scene);
        library.calls = &log.lines;
        proxies.calls = &log.lines;
    }
    ~PresenterStand()
    {
        NxPresenter::registerScene(nullptr);
        NxAppSettings::instance()->setStore(nullptr);
        NxConfig::Instance()->setStore(nullptr);
    }
    PresenterStand(const PresenterStand &) = delete;
    PresenterStand &operator=(const PresenterStand &) = delete;

    SettingYard settings;
    PresenterLog log;
    ScriptedEngine engine;
    const NxMediaEngineDoor door{&engine};
    ScriptedProxies proxies;
    ScriptedScene scene;
    ScriptedLibrary library;
};
