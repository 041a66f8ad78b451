// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

class Container;

/// While it lives, at most that many bytes of the container's file are read; then the file seems
/// to end. So a question whose answer may lie anywhere in a file never reads all of a huge one.
class ReadingLimit
{
    Q_DISABLE_COPY_MOVE(ReadingLimit)
public:
    ReadingLimit(Container *container, qint64 bytes);
    ~ReadingLimit();

    /// True when an end of the file that was met is none.
    [[nodiscard]] bool wasReached() const;

private:
    Container *const m_container; // Not owned.
    const qint64 m_outer;
};
