// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate_P/NxPreviewVideo.h>

#include <NxVBLModel/INxClip.h>
#include <NxVBLModel/INxTimeline.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <QSize>

namespace {

constexpr QSize OutputSize{1'920, 1'080};
constexpr int FirstTrack = 0;
constexpr qint64 Start = 0;

} // namespace

NxPreviewVideo::NxPreviewVideo() = default;

NxPreviewVideo::~NxPreviewVideo() = default;

void NxPreviewVideo::setPath(const QString &path)
{
    if (path == m_path)
        return;
    m_last = {};
    m_lastNumber = -1;
    const bool isShown = path.contains(QLatin1String("mp4"));
    m_path = isShown ? path : QString();
    if (isShown)
        show(path);
}

void NxPreviewVideo::show(const QString &path)
{
    const INxMediaEngine *engine = NxMediaEngineDoor::engine();
    // A timeline takes no clips of another engine.
    if (engine != m_engine || !destroyClip())
        m_timeline.reset();
    m_engine = engine;
    m_clip = nullptr;
    std::unique_ptr<INxClip> clip(INxClip::createVideoClip(path));
    if (!m_timeline) {
        m_timeline.reset(INxTimeline::createInstance(clip.get()));
        if (m_timeline)
            m_clip = clip.release();
    } else if (clip && m_timeline->insertClip(clip.get(), FirstTrack, Start)) {
        m_clip = clip.release();
    }
    if (m_timeline)
        m_timeline->setOutputSize(OutputSize.width(), OutputSize.height());
}

bool NxPreviewVideo::destroyClip()
{
    if (!m_timeline || !m_clip)
        return true;
    if (!m_timeline->removeClip(m_clip))
        return false;
    delete m_clip; // It was given back.
    return true;
}

qint64 NxPreviewVideo::frameCount() const
{
    return m_timeline ? m_timeline->frameCount() : 0;
}

QImage NxPreviewVideo::frame(qint64 number, int width, int height)
{
    if (!m_timeline)
        return {};
    const bool isSameSize = m_last.size() == QSize(width, height);
    if (isSameSize && number == m_lastNumber)
        return m_last;
    QImage image(width, height, QImage::Format_RGB32);
    if (image.isNull())
        return {};
    if (!m_timeline->renderFrame(number, width, height, image.bits()))
        return isSameSize ? m_last : QImage();
    m_last = image;
    m_lastNumber = number;
    return image;
}
