// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/pictures/NxEngineThumbManager.h>

#include <NxVBLEngine/pictures/NxPictureService.h>

#include <utility>

NxEngineThumbManager::NxEngineThumbManager(Current current) : m_current(std::move(current)) {}

NxEngineThumbManager::~NxEngineThumbManager()
{
    NxEngineThumbManager::cancelRequests();
    if (m_told)
        m_told->setTeller(this, {});
}

NxPictureService *NxEngineThumbManager::service()
{
    NxPictureService *pictures = *m_current;
    if (pictures && m_teller && m_told != pictures) {
        pictures->setTeller(this, m_teller);
        m_told = pictures;
    }
    return pictures;
}

QImage NxEngineThumbManager::thumbnail(INxAbstractMedia *media, const QSize &devicePixels)
{
    NxPictureService *pictures = service();
    return pictures ? pictures->cover(this, media, devicePixels) : QImage();
}

QImage NxEngineThumbManager::filmStrip(INxAbstractMedia *media)
{
    NxPictureService *pictures = service();
    return pictures ? pictures->strip(this, media) : QImage();
}

void NxEngineThumbManager::setArrivalTeller(ArrivalTeller teller)
{
    if (m_told)
        m_told->setTeller(this, {});
    m_told.clear();
    m_teller = std::move(teller);
}

void NxEngineThumbManager::cancelRequests()
{
    if (*m_current)
        (*m_current)->cancelRequests(this);
}
