// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <NxCore/NxLog.h>

namespace {

INxMediaEngine *installedEngine = nullptr;

bool install(INxMediaEngine *engine)
{
    constexpr const char *door = "NxMediaEngineDoor::NxMediaEngineDoor";
    if (!engine) {
        NX_LOG_ERROR_AS(door, "there is no media engine to install");
        return false;
    }
    if (installedEngine) {
        NX_LOG_ERROR_AS(door, "a media engine is installed already, another one is refused");
        return false;
    }
    installedEngine = engine;
    return true;
}

} // namespace

NxMediaEngineDoor::NxMediaEngineDoor(INxMediaEngine *engine) : m_installed(install(engine)) {}

NxMediaEngineDoor::~NxMediaEngineDoor()
{
    if (m_installed)
        installedEngine = nullptr;
}

INxMediaEngine *NxMediaEngineDoor::engine()
{
    return installedEngine;
}
