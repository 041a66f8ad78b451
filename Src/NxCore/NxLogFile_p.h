// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxLogRecord.h>
#include <NxCore/NxResult.h>

#include <memory>

/// A log file that a thread of its own writes, so that nobody who logs waits for a disk.
class NxLogFile
{
public:
    /// Opens the file for appending; folders are made.
    [[nodiscard]] static NxResult<std::unique_ptr<NxLogFile>> open(const QString &path);
    /// Writes what is still waiting.
    ~NxLogFile();

    /// From any thread. Waits only when thousands of lines wait already.
    void write(const NxLogRecord &record);

private:
    struct Sink;
    explicit NxLogFile(std::unique_ptr<Sink> sink);

    const std::unique_ptr<Sink> m_sink;
};
