// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxBsThumbManager.h>

#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

INxBsThumbManager::~INxBsThumbManager() = default;

QImage INxBsThumbManager::filmStrip(INxAbstractMedia * /*media*/)
{
    return {};
}

bool INxBsThumbManager::servesFilmStrips() const
{
    return false;
}

void INxBsThumbManager::setArrivalTeller(ArrivalTeller /*teller*/) {}

INxBsThumbManager *createBsThumbManager()
{
    INxMediaEngine *engine = NxMediaEngineDoor::engine();
    return engine ? engine->createThumbManager() : nullptr;
}

void releaseThumbManager(INxBsThumbManager *handle)
{
    delete handle;
}
