// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxLogCapture.h>

#include <QString>

/// Why the media model refused something: it answers no, and notes the reason in the log.
/// Listens while it lives.
class LogReason
{
public:
    /// The last line since the object was made; a plain "refused" when there is none.
    [[nodiscard]] QString text() const
    {
        const QStringList lines = m_capture.texts();
        return lines.isEmpty() ? QStringLiteral("refused") : lines.constLast();
    }

private:
    NxLogCapture m_capture;
};
