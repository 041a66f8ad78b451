// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>
#include <NxCore/NxLogRecord.h>

#include <QStringList>
#include <QVector>

#include <memory>

class NxLog;
class NxLogCapturePrivate;

/// Collects the lines that are written to the global log while this object lives.
///
/// Nothing is taken away from other captures, the file or standard error. Lines may come from any
/// thread; every operation may be called from any thread.
class NXCORE_EXPORT NxLogCapture
{
public:
    NxLogCapture();
    ~NxLogCapture();

    [[nodiscard]] QVector<NxLogRecord> records() const;
    /// The texts of all lines, or of one level's.
    [[nodiscard]] QStringList texts() const;
    [[nodiscard]] QStringList texts(NxLogLevel level) const;
    void clear();

private:
    Q_DISABLE_COPY_MOVE(NxLogCapture)
    friend class NxLog;

    const std::unique_ptr<NxLogCapturePrivate> d;
};
