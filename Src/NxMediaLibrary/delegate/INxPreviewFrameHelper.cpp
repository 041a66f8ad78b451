// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/INxPreviewFrameHelper.h>

#include <NxMediaLibrary/delegate_P/NxFilmStripSource.h>
#include <NxMediaLibrary/delegate_P/NxPreviewFrameSize.h>
#include <NxMediaLibrary/delegate_P/NxPreviewVideo.h>
#include <NxVBLModel/INxStockMediaItem.h>
#include <NxVBLModel/INxVCGMediaItem.h>

#include <QPointer>
#include <QTimer>

#include <iterator>

namespace {

constexpr int FrameInterval = 40; // ms
constexpr int DownloadWait = 500; // ms
constexpr int FirstMedia = 0;

QString firstMediaOf(const INxVCGMediaItem *clip)
{
    return clip->mediaCount() > FirstMedia ? clip->mediaPath(FirstMedia) : QString();
}

} // namespace

INxPreviewFrameHelper::INxPreviewFrameHelper(QObject *parent)
    : QObject(parent),
      m_frameTimer(new QTimer(this)),
      m_downloadTimer(new QTimer(this)),
      m_video(std::make_unique<NxPreviewVideo>()),
      m_strips(
          std::make_unique<NxFilmStripSource>([this](const QImage &strip) { takeStrip(strip); }))
{
    m_downloadTimer->setSingleShot(true);
    connect(m_frameTimer, &QTimer::timeout, this, &INxPreviewFrameHelper::slotPlayThumbnailTimeout);
    connect(m_downloadTimer, &QTimer::timeout, this,
            &INxPreviewFrameHelper::slotDownloadVCGMediaTimeout);
}

INxPreviewFrameHelper::~INxPreviewFrameHelper() = default;

void INxPreviewFrameHelper::setMedia(const QModelIndex &index, INxAbstractMedia *media)
{
    m_index = index;
    m_media = media;
    m_isHolding = media != nullptr;
    m_isPlayWanted = false;
    m_isHeld = false;
    m_strips->forget();
    forgetWaiting();
    auto *item = dynamic_cast<INxAbstractMediaItem *>(media);
    if (!item) {
        m_strip = {};
        setPlayVideo({});
        return;
    }
    if (dynamic_cast<INxStockMediaItem *>(item)) {
        setMediaInStockMedia(item);
        return;
    }
    if (dynamic_cast<INxVCGMediaItem *>(item)) {
        setMediaInVCGMedia(item);
        return;
    }
    m_strip = m_strips->ask(item);
    m_frame = 0;
}

INxAbstractMedia *INxPreviewFrameHelper::getMedia() const
{
    return m_media.get();
}

void INxPreviewFrameHelper::setMediaInStockMedia(INxAbstractMediaItem *item)
{
    if (!item || item->subKind() != NXVBLMODEL::mskStockMedia) {
        setPlayVideo({});
        return;
    }
    const QString path = item->previewPath();
    if (path.endsWith(QLatin1String("mp4")))
        m_requested.remove(item);
    else if (!isRequested(item))
        requestPreview(item);
    setPlayVideo(path);
}

bool INxPreviewFrameHelper::isRequested(INxAbstractMediaItem *item) const
{
    const auto found = m_requested.constFind(item);
    return found != m_requested.constEnd() && !found->isNull();
}

void INxPreviewFrameHelper::requestPreview(INxAbstractMediaItem *item)
{
    for (auto it = m_requested.begin(); it != m_requested.end();)
        it = it->isNull() ? m_requested.erase(it) : std::next(it);
    m_requested.insert(item, item);
    item->requestResource({}, NXVBLMODEL::rrPreview, NXVBLMODEL::dkPreview);
}

void INxPreviewFrameHelper::setMediaInVCGMedia(INxAbstractMediaItem *item)
{
    forgetWaiting();
    const auto *clip = dynamic_cast<INxVCGMediaItem *>(item);
    if (!clip || clip->stateCode() != NXVBLMODEL::vrsReady) {
        setPlayVideo({});
        return;
    }
    if (clip->isPreviewAvailable()) {
        setPlayVideo(firstMediaOf(clip));
        return;
    }
    setPlayVideo({});
    m_waiting = item;
    m_downloadTimer->start(DownloadWait);
}

void INxPreviewFrameHelper::slotDownloadVCGMediaTimeout()
{
    const auto *clip = dynamic_cast<INxVCGMediaItem *>(m_waiting.get());
    m_waiting = nullptr;
    if (clip)
        setPlayVideo(firstMediaOf(clip));
}

void INxPreviewFrameHelper::forgetWaiting()
{
    m_downloadTimer->stop();
    m_waiting = nullptr;
}

bool INxPreviewFrameHelper::playPreviewFrame()
{
    if (m_media.isNull())
        return true;
    if (!m_isEnabled)
        return false;
    m_frameTimer->stop();
    m_isHeld = false;
    m_frame = 0;
    const bool isReady = isVideoHeld() ? !getPlayVideo().isEmpty() : !m_strip.isNull();
    m_isPlayWanted = !isReady && m_strips->isAwaited();
    if (isReady)
        m_frameTimer->start(FrameInterval);
    return isReady;
}

int INxPreviewFrameHelper::frameCount() const
{
    if (m_media.isNull())
        return 0;
    return isVideoHeld() ? int(m_video->frameCount()) : m_strip.height() / NxPreviewFrame::Height;
}

bool INxPreviewFrameHelper::showPreviewFrame(qreal place)
{
    const int frames = frameCount();
    if (!m_isEnabled || frames <= 0)
        return false;
    m_frameTimer->stop();
    m_isPlayWanted = false;
    m_isHeld = true;
    m_frame = qMin(int(qBound(0.0, place, 1.0) * frames), frames - 1);
    Q_EMIT sigUpdate(m_index);
    return true;
}

void INxPreviewFrameHelper::stopPreviewFrame()
{
    forgetWaiting();
    if (!m_frameTimer->isActive() && !m_isPlayWanted && !m_isHeld)
        return;
    m_frameTimer->stop();
    m_isHeld = false;
    m_frame = 0;
    m_isPlayWanted = false;
    m_strips->forget();
    m_media = nullptr;
    m_isHolding = false;
    m_index = QModelIndex();
}

void INxPreviewFrameHelper::takeStrip(const QImage &strip)
{
    m_strip = strip;
    const bool isToPlay = m_isPlayWanted && m_isEnabled && !m_media.isNull() && !strip.isNull();
    m_isPlayWanted = false;
    if (!isToPlay)
        return;
    m_frame = 0;
    m_frameTimer->start(FrameInterval);
    Q_EMIT sigUpdate(m_index);
}

void INxPreviewFrameHelper::setPlayThumbnail(const QImage &strip)
{
    m_strips->forget();
    m_isPlayWanted = false;
    m_strip = strip;
}

bool INxPreviewFrameHelper::isVideoHeld() const
{
    const INxAbstractMedia *media = m_media.get();
    return dynamic_cast<const INxStockMediaItem *>(media)
           || dynamic_cast<const INxVCGMediaItem *>(media);
}

bool INxPreviewFrameHelper::getCurIndexPlayThumbnail(QImage &out) const
{
    if (isVideoHeld()) {
        if (!m_video->hasTimeline() || getPlayVideo().isEmpty())
            return false;
        if (m_frame < m_video->frameCount())
            out = getTimelineFrame(m_frame, NxPreviewFrame::Width, NxPreviewFrame::Height);
        return true;
    }
    if (isDead() || m_strip.isNull())
        return false;
    out = m_strip.copy(0, NxPreviewFrame::Height * m_frame, NxPreviewFrame::Width,
                       NxPreviewFrame::Height);
    return true;
}

bool INxPreviewFrameHelper::isBeyondStrip() const
{
    return !isVideoHeld() && !m_strip.isNull()
           && m_frame * NxPreviewFrame::Height >= m_strip.height();
}

QImage INxPreviewFrameHelper::getTimelineFrame(qint64 frame, int width, int height) const
{
    return m_video->frame(frame, width, height);
}

QString INxPreviewFrameHelper::getPlayVideo() const
{
    return m_video->path();
}

void INxPreviewFrameHelper::setPlayVideo(const QString &path)
{
    m_video->setPath(path);
}

void INxPreviewFrameHelper::slotPlayThumbnailTimeout()
{
    if (isDead())
        stopPreviewFrame();
    else if (isVideoHeld())
        stepVideo();
    else
        stepStrip();
}

void INxPreviewFrameHelper::stepVideo()
{
    step(m_frame < m_video->frameCount());
}

void INxPreviewFrameHelper::stepStrip()
{
    if (!m_strip.isNull())
        step((m_frame + 1) * NxPreviewFrame::Height <= m_strip.height());
}

/// Who paints at the signal paints the frame of now, who paints later the next one.
void INxPreviewFrameHelper::step(bool hasMore)
{
    if (!hasMore)
        m_frame = 0;
    const QPointer<INxPreviewFrameHelper> self(this);
    Q_EMIT sigUpdate(m_index);
    if (self && hasMore)
        ++m_frame;
}
