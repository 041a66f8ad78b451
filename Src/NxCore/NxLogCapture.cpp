// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxLogCapture_p.h"

#include "NxLog_p.h"

#include <NxCore/NxLog.h>

#include <algorithm>

NxLogCapture::NxLogCapture() : d(std::make_unique<NxLogCapturePrivate>())
{
    NxLogPrivate &log = *NxLog::global()->d;
    const std::lock_guard<std::mutex> lock(log.mutex);
    log.captures.push_back(this);
}

NxLogCapture::~NxLogCapture()
{
    NxLogPrivate &log = *NxLog::global()->d;
    const std::lock_guard<std::mutex> lock(log.mutex);
    log.captures.erase(std::remove(log.captures.begin(), log.captures.end(), this),
                       log.captures.end());
}

QVector<NxLogRecord> NxLogCapture::records() const
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    return d->records;
}

QStringList NxLogCapture::texts() const
{
    QStringList list;
    for (const NxLogRecord &record : records())
        list += record.text;
    return list;
}

QStringList NxLogCapture::texts(NxLogLevel level) const
{
    QStringList list;
    for (const NxLogRecord &record : records()) {
        if (record.level == level)
            list += record.text;
    }
    return list;
}

void NxLogCapture::clear()
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    d->records.clear();
}
