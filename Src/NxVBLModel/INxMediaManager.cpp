// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaManager.h>

INxMediaManager::~INxMediaManager() = default;

INxMediaImporter *INxMediaManager::importer()
{
    return nullptr;
}

void INxMediaManager::setProject(INxProject *) {}

bool INxMediaManager::isTimelineMedia() const
{
    return false;
}

bool INxMediaManager::isTimelineResource() const
{
    return false;
}
