// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/preview/NxPreviewTimeline.h>

#include <NxVBLEngine/preview/NxPreviewService.h>

#include <utility>

NxPreviewTimeline::NxPreviewTimeline(NxPreviewService *service, std::unique_ptr<NxPreviewClip> clip)
    : m_service(service)
{
    take(std::move(clip));
}

NxPreviewTimeline::~NxPreviewTimeline()
{
    if (m_service)
        m_service->remove(m_film);
}

void NxPreviewTimeline::take(std::unique_ptr<NxPreviewClip> clip)
{
    m_clip = std::move(clip);
    m_clip->setTimeline(this);
    if (m_service)
        m_film = m_service->add(m_clip->path(), m_output);
}

QList<INxClip *> NxPreviewTimeline::clips()
{
    return m_clip ? QList<INxClip *>{m_clip.get()} : QList<INxClip *>();
}

bool NxPreviewTimeline::removeClip(INxClip *clip)
{
    if (!m_clip || clip != m_clip.get())
        return false;
    m_clip.release()->setTimeline(nullptr);
    if (m_service)
        m_service->remove(m_film);
    m_film = 0;
    return true;
}

bool NxPreviewTimeline::insertClip(INxClip *clip, int track, qint64 position)
{
    auto *preview = dynamic_cast<NxPreviewClip *>(clip);
    if (m_clip || !preview || preview->timeline() || track != 0 || position != 0)
        return false;
    take(std::unique_ptr<NxPreviewClip>(preview));
    return true;
}

void NxPreviewTimeline::setOutputSize(int width, int height)
{
    m_output = {width, height};
    if (m_service)
        m_service->setOutput(m_film, m_output);
}

qint64 NxPreviewTimeline::frameCount()
{
    return m_service && m_clip ? m_service->frameCount(m_film) : 0;
}

bool NxPreviewTimeline::renderFrame(qint64 frame, int width, int height, uchar *rgb32)
{
    return m_service && m_clip && m_service->copyFrame(m_film, frame, {width, height}, rgb32);
}
