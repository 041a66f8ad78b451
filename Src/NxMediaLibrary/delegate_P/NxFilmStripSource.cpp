// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate_P/NxFilmStripSource.h>

#include <NxMediaLibrary/delegate_P/NxFilmStripLoader.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxBsThumbManager.h>
#include <NxVBLModel/NxMediaEngineDoor.h>

#include <utility>

NxFilmStripSource::NxFilmStripSource(Arrived arrived)
    : m_arrived(std::move(arrived)),
      m_handle(nullptr, &releaseThumbManager)
{
}

NxFilmStripSource::~NxFilmStripSource() = default;

QImage NxFilmStripSource::ask(INxAbstractMediaItem *item)
{
    forget();
    const QString path = item->thumbnailStripPath();
    if (path.isEmpty())
        return {};
    INxBsThumbManager *pictures = handle();
    if (pictures && pictures->servesFilmStrips()) {
        const QImage strip = pictures->filmStrip(item);
        m_isAwaited = strip.isNull();
        m_asked = m_isAwaited ? item : nullptr;
        return NxFilmStripLoader::isStrip(strip) ? strip : QImage();
    }
    if (!m_loader)
        m_loader = std::make_unique<NxFilmStripLoader>(
            [this](const QString &loaded, const QImage &strip) { onLoaded(loaded, strip); });
    m_isAwaited = true;
    m_path = path;
    m_loader->load(path);
    return {};
}

void NxFilmStripSource::forget()
{
    m_isAwaited = false;
    m_asked = nullptr;
    m_path.clear();
}

INxBsThumbManager *NxFilmStripSource::handle()
{
    const INxMediaEngine *engine = NxMediaEngineDoor::engine();
    if (m_handle && engine == m_engine)
        return m_handle.get();
    m_engine = engine;
    m_handle.reset(createBsThumbManager());
    if (m_handle)
        m_handle->setArrivalTeller([this](INxAbstractMedia *media) { onCame(media); });
    return m_handle.get();
}

void NxFilmStripSource::onCame(INxAbstractMedia *media)
{
    if (!m_isAwaited || !media || media != m_asked.get() || !m_handle)
        return;
    const QImage strip = m_handle->filmStrip(media);
    if (!strip.isNull())
        answer(strip);
}

void NxFilmStripSource::onLoaded(const QString &path, const QImage &strip)
{
    if (m_isAwaited && path == m_path)
        answer(strip);
}

void NxFilmStripSource::answer(const QImage &strip)
{
    forget();
    const Arrived arrived = m_arrived; // It may destroy this object.
    arrived(NxFilmStripLoader::isStrip(strip) ? strip : QImage());
}
