// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxPreviewMessages.h>
#include <NxWorkerProtocol/NxSharedMemory.h>

#include <memory>

/// What the thread of previews has to tell.
struct NxPreviewNews
{
    enum class What {
        Opened, ///< `opened`: how long a film is, or why it cannot be played.
        Frame, ///< `frame`: a picture is in a slot of `memory`.
        Lost, ///< The worker is no more; nothing comes into `memory` any longer.
    };

    What what = What::Lost;
    NxPreviewOpened opened;
    NxPreviewFrame frame;
    std::shared_ptr<const NxSharedMemory> memory;
    /// Of a loss: the film that has to be played anew by whoever asks for it; 0: none, it goes on
    /// by itself.
    quint64 stopped = 0;
};
