// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/pictures/NxEngineThumbManager.h>

#include <NxVBLEngine/pictures/NxPictureService.h>

#include <utility>

NxEngineThumbManager::NxEngineThumbManager(Current current) : m_current(std::move(current)) {}

NxEngineThumbManager::~NxEngineThumbManager()
{
    NxEngineThumbManager::cancelRequests();
}

QImage NxEngineThumbManager::thumbnail(INxAbstractMedia *media, const QSize &devicePixels)
{
    return *m_current ? (*m_current)->cover(this, media, devicePixels) : QImage();
}

QImage NxEngineThumbManager::filmStrip(INxAbstractMedia *media)
{
    return *m_current ? (*m_current)->strip(this, media) : QImage();
}

void NxEngineThumbManager::cancelRequests()
{
    if (*m_current)
        (*m_current)->cancelRequests(this);
}
