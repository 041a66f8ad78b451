// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxPreviewMessages.h>
#include <NxWorkerProtocol/NxSharedMemory.h>

#include <memory>

/// What the thread of previews is asked for.
struct NxPreviewOrder
{
    enum class What {
        Play, ///< Opens `open`, and shows `show` of it.
        Show, ///< Shows another frame of the film that was opened last.
        Close, ///< Nothing is played any more.
    };

    What what = What::Close;
    NxPreviewOpen open;
    NxPreviewShow show;
    /// Whose slots `show.freed` gives back; those of another memory mean nothing by now.
    std::shared_ptr<const NxSharedMemory> memory;
};
