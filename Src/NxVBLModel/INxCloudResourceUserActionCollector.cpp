// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxCloudResourceUserActionCollector.h>

#include <NxVBLModel/INxMediaEngine.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

INxCloudResourceUserActionCollector::~INxCloudResourceUserActionCollector() = default;

INxCloudResourceUserActionCollector *INxCloudResourceUserActionCollector::getInstance()
{
    return NxMediaEngineDoor::engine() ? NxMediaEngineDoor::engine()->collector() : nullptr;
}
