// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxLogCapture.h>

/// Each line as "error Class::method: text" or "info Class::method: text".
inline QStringList linesOf(const NxLogCapture &capture)
{
    QStringList lines;
    for (const NxLogRecord &record : capture.records()) {
        const bool isError = record.level == NxLogLevel::Error;
        lines.append(QStringLiteral("%1 %2: %3")
                         .arg(isError ? QStringLiteral("error") : QStringLiteral("info"),
                              QString::fromUtf8(record.function), record.text));
    }
    return lines;
}
