// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxLogCapture.h>

#include <mutex>

class NxLogCapturePrivate
{
public:
    void append(const NxLogRecord &record)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        records.append(record);
    }

    mutable std::mutex mutex;
    QVector<NxLogRecord> records; // Guarded by the mutex.
};
