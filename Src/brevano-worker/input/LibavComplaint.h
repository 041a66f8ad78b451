// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// Listens to what FFmpeg complains of on this thread while it lives: the sentence that it writes
/// to its log tells more than the code that it returns. Nothing is printed.
class LibavComplaint
{
    Q_DISABLE_COPY_MOVE(LibavComplaint)
public:
    LibavComplaint();
    ~LibavComplaint();

    /// The first error, e.g. "moov atom not found"; empty when there was none.
    [[nodiscard]] QString text() const { return m_text; }

private:
    QString m_text;
    LibavComplaint *const m_outer; // Not owned. Listens again when this has gone.

    friend struct LibavListener;
};
