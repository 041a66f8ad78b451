// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/preview/PreviewLoop.h>

#include <QCoreApplication>

#include <optional>
#include <utility>

PreviewLoop::PreviewLoop(int in, int out, std::unique_ptr<NxSharedMemory> memory)
    : m_pipe(in, out),
      m_memory(std::move(memory))
{
}

NxWorkerExit PreviewLoop::run(const NxWorkerHello &hello)
{
    if (!m_pipe.send(NxWorkerWord::Hello, NxWorkerMessages::packed(hello)))
        return NxWorkerExit::Done;
    for (;;) {
        if ((m_isResting || m_pipe.hasMore()) && !m_pipe.receive())
            return NxWorkerExit::Done;
        while (const std::optional<NxWorkerFrames::Frame> frame = m_pipe.take()) {
            if (!handle(*frame))
                return NxWorkerExit::PipeBroken;
        }
        if (m_pipe.isBroken())
            return NxWorkerExit::PipeBroken;
        if (!m_isResting && !work())
            return NxWorkerExit::PipeBroken;
    }
}

bool PreviewLoop::handle(const NxWorkerFrames::Frame &frame)
{
    NxPreviewOpen toOpen;
    NxPreviewShow toShow;
    if (frame.word == NxWorkerWord::PreviewOpen)
        return NxPreviewMessages::unpack(frame.bytes, &toOpen) && open(toOpen);
    return frame.word == NxWorkerWord::PreviewShow
           && NxPreviewMessages::unpack(frame.bytes, &toShow) && show(toShow);
}

bool PreviewLoop::open(const NxPreviewOpen &order)
{
    m_film.reset();
    m_number = order.number;
    if (!rest()) // What comes now is of the next film.
        return false;
    return order.path.isEmpty() ? sayOpened(order.number, 0) : openFilm(order);
}

bool PreviewLoop::openFilm(const NxPreviewOpen &order)
{
    if (!m_modules)
        m_modules = std::make_unique<RenderModules>();
    if (!m_modules->areLoaded())
        return sayOpened(order.number, 0,
                         QCoreApplication::translate(
                             "PreviewLoop", "The modules that render films are not installed."));
    NxResult<std::unique_ptr<FilmRenderer>> film = FilmRenderer::open(order.path, order.output);
    if (!film)
        return sayOpened(order.number, 0, film.errorText());
    m_film = film.take();
    return sayOpened(order.number, m_film->frames());
}

bool PreviewLoop::show(const NxPreviewShow &order)
{
    m_ring.takeBack(order.freed);
    m_shown = order;
    m_isResting = false;
    return true;
}

bool PreviewLoop::work()
{
    const bool isPlaying = m_film && m_shown.number == m_number;
    if (isPlaying)
        m_ring.keepUp(m_shown, m_film->frames());
    const std::optional<qint64> frame =
        isPlaying ? m_ring.missing(m_shown, m_film->frames()) : std::nullopt;
    const std::optional<quint32> slot = m_ring.freeSlot();
    return frame && slot ? render(*frame, *slot) : rest();
}

bool PreviewLoop::render(qint64 frame, quint32 slot)
{
    uchar *place = m_memory->bytes() + qint64(slot) * NxPreviewSlots::Capacity;
    const NxResult<void> rendered = m_film->render(frame, m_shown.size, place);
    if (!rendered) {
        m_film.reset();
        return sayOpened(m_number, 0, rendered.errorText());
    }
    const NxPreviewFrame picture{m_number, frame, slot, m_shown.size};
    m_ring.lend(picture);
    return m_pipe.send(NxWorkerWord::PreviewFrame, NxPreviewMessages::packed(picture));
}

bool PreviewLoop::rest()
{
    m_isResting = true;
    return m_pipe.send(NxWorkerWord::PreviewRested, NxPreviewMessages::packedRested(m_shown.turn));
}

bool PreviewLoop::sayOpened(quint64 number, qint64 frames, const QString &reason)
{
    return m_pipe.send(NxWorkerWord::PreviewOpened,
                       NxPreviewMessages::packed(NxPreviewOpened{number, frames, reason}));
}
