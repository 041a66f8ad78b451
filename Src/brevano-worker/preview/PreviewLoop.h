// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxPreviewMessages.h>
#include <NxWorkerProtocol/NxSharedMemory.h>
#include <NxWorkerProtocol/NxWorkerExit.h>
#include <brevano-worker/pipe/WorkerPipe.h>
#include <brevano-worker/preview/FilmRenderer.h>
#include <brevano-worker/preview/PreviewRing.h>
#include <brevano-worker/preview/RenderModules.h>

#include <memory>

/// Says hello, then plays one film after another into the shared memory, always some frames ahead
/// of what the editor shows, until the pipe is closed. Between two frames it listens.
class PreviewLoop
{
public:
    /// Descriptors to read from and to write to; not owned.
    PreviewLoop(int in, int out, std::unique_ptr<NxSharedMemory> memory);

    [[nodiscard]] NxWorkerExit run(const NxWorkerHello &hello);

private:
    [[nodiscard]] bool handle(const NxWorkerFrames::Frame &frame);
    [[nodiscard]] bool open(const NxPreviewOpen &order);
    [[nodiscard]] bool openFilm(const NxPreviewOpen &order);
    [[nodiscard]] bool show(const NxPreviewShow &order);
    /// Renders one frame, or says that there is none left to render.
    [[nodiscard]] bool work();
    [[nodiscard]] bool render(qint64 frame, quint32 slot);
    [[nodiscard]] bool rest();
    [[nodiscard]] bool sayOpened(quint64 number, qint64 frames, const QString &reason = {});

    WorkerPipe m_pipe;
    const std::unique_ptr<NxSharedMemory> m_memory;
    std::unique_ptr<RenderModules> m_modules; // Since the first film.
    std::unique_ptr<FilmRenderer> m_film;
    PreviewRing m_ring;
    quint64 m_number = 0; // Of the film.
    NxPreviewShow m_shown;
    bool m_isResting = true;
};
