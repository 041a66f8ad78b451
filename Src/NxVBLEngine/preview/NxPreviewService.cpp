// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/preview/NxPreviewService.h>

#include <NxCore/NxLog.h>
#include <NxWorkerProtocol/NxPictureFile.h>

#include <QFile>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

constexpr QSize FirstSize(NxPictureFile::FrameWidth, NxPictureFile::FrameHeight);

} // namespace

NxPreviewService::NxPreviewService(NxPreviewSettings settings)
    : m_size(FirstSize),
      m_bell([this] { takeNews(); }),
      m_thread(std::move(settings), m_bell.rope())
{
}

NxPreviewService::~NxPreviewService() = default;

// What is asked

quint64 NxPreviewService::add(const QString &path, QSize output)
{
    const quint64 film = ++m_lastFilm;
    m_films.insert(film, {path, output, -1});
    play(film, 0, FirstSize);
    return film;
}

void NxPreviewService::remove(quint64 film)
{
    m_films.remove(film);
    if (film == m_film)
        stopPlaying();
}

void NxPreviewService::setOutput(quint64 film, QSize output)
{
    const auto found = m_films.find(film);
    if (found == m_films.end() || found->output == output || !NxPreviewSlots::fits(output))
        return;
    found->output = output;
    if (isPlaying(film))
        play(film, m_shown, m_size);
}

qint64 NxPreviewService::frameCount(quint64 film)
{
    takeNews();
    const qint64 frames = m_films.value(film, {{}, {}, 0}).frames;
    if (frames < 0 && !isPlaying(film))
        play(film, 0, FirstSize);
    return std::max<qint64>(frames, 0);
}

bool NxPreviewService::copyFrame(quint64 film, qint64 frame, QSize size, uchar *rgb32)
{
    takeNews();
    const qint64 frames = m_films.value(film, {{}, {}, 0}).frames;
    if (frame < 0 || (frames >= 0 && frame >= frames) || !NxPreviewSlots::fits(size))
        return false;
    if (!isPlaying(film)) {
        play(film, frame, size);
        return false;
    }
    show(frame, size);
    const auto held = m_held.constFind(frame);
    if (held == m_held.constEnd())
        return false;
    const qint64 place = qint64(*held) * NxPreviewSlots::Capacity;
    const qint64 bytes = qint64(size.width()) * size.height() * NxPreviewSlots::BytesPerPixel;
    std::memcpy(rgb32, m_memory->bytes() + place, size_t(bytes));
    return true;
}

void NxPreviewService::play(quint64 film, qint64 frame, QSize size)
{
    giveBackAll();
    ++m_number;
    m_film = film;
    m_playing = true;
    m_shown = frame;
    m_size = size;
    order(NxPreviewOrder::What::Play);
}

void NxPreviewService::show(qint64 frame, QSize size)
{
    if (std::exchange(m_size, size) != size)
        giveBackAll();
    m_shown = frame;
    const QList<qint64> held = m_held.keys();
    for (const qint64 one : held) {
        if (!isWanted(one))
            giveBack(one);
    }
    order(NxPreviewOrder::What::Show);
}

void NxPreviewService::stopPlaying()
{
    giveBackAll();
    ++m_number;
    m_film = 0;
    m_playing = false;
    order(NxPreviewOrder::What::Close);
}

void NxPreviewService::order(NxPreviewOrder::What what)
{
    NxPreviewOrder order;
    order.what = what;
    order.open.number = m_number;
    if (what == NxPreviewOrder::What::Play) {
        const Film &film = m_films[m_film];
        order.open.path = QFile::encodeName(film.path);
        order.open.output = film.output;
    }
    order.show.frame = m_shown;
    order.show.size = m_size;
    order.show.freed = std::exchange(m_freed, 0);
    order.memory = m_memory;
    m_thread.add(std::move(order));
}

// What comes

void NxPreviewService::takeNews()
{
    using Action = void (NxPreviewService::*)(const NxPreviewNews &);
    static constexpr Action actions[] = {&NxPreviewService::takeOpened,
                                         &NxPreviewService::takeFrame, &NxPreviewService::takeLoss};
    const std::vector<NxPreviewNews> all = m_thread.take();
    for (const NxPreviewNews &news : all)
        (this->*actions[size_t(news.what)])(news);
    if (m_freed != 0 && m_playing)
        order(NxPreviewOrder::What::Show); // The worker may wait for a slot that nobody wants.
}

void NxPreviewService::takeOpened(const NxPreviewNews &news)
{
    const auto film = m_films.find(m_film);
    if (news.opened.number != m_number || film == m_films.end())
        return;
    film->frames = news.opened.frames;
    if (film->frames > 0)
        return;
    NX_LOG_INFO("no preview of %s: %s", qUtf8Printable(film->path),
                qUtf8Printable(news.opened.reason));
    giveBackAll();
}

void NxPreviewService::takeFrame(const NxPreviewNews &news)
{
    if (news.memory != m_memory) {
        m_held.clear();
        m_freed = 0;
        m_memory = news.memory;
    }
    const NxPreviewFrame &frame = news.frame;
    const bool isOurs = frame.number == m_number && frame.size == m_size && isWanted(frame.frame);
    if (isOurs && !m_held.contains(frame.frame))
        m_held.insert(frame.frame, frame.slot);
    else
        m_freed |= NxPreviewSlots::bit(int(frame.slot));
}

void NxPreviewService::takeLoss(const NxPreviewNews &news)
{
    if (news.memory == m_memory) {
        m_held.clear();
        m_freed = 0;
        m_memory.reset();
    }
    if (news.stopped == m_number)
        m_playing = false;
}

void NxPreviewService::giveBack(qint64 frame)
{
    m_freed |= NxPreviewSlots::bit(int(m_held.take(frame)));
}

void NxPreviewService::giveBackAll()
{
    for (const quint32 slot : qAsConst(m_held))
        m_freed |= NxPreviewSlots::bit(int(slot));
    m_held.clear();
}

bool NxPreviewService::isWanted(qint64 frame) const
{
    const qint64 frames = m_films.value(m_film).frames;
    return NxPreviewSlots::isWanted(frame, m_shown, std::max<qint64>(frames, 0));
}
