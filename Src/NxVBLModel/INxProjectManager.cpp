// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxProjectManager.h>

#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

namespace {

class EngineProjectManager final : public INxProjectManager
{
public:
    INxProject *currentProject() override
    {
        INxMediaEngine *engine = NxMediaEngineDoor::engine();
        return engine ? engine->currentProject() : nullptr;
    }
};

} // namespace

INxProjectManager::~INxProjectManager() = default;

INxProjectManager *INxProjectManager::getInstance()
{
    static EngineProjectManager manager;
    return &manager;
}
