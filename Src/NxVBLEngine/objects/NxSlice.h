// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QElapsedTimer>

/// What a part of the engine may take of the GUI thread at a time, counted from when it is made;
/// what is left to do waits until the user's events had their turn.
///
/// Several parts may each have a slice before that turn comes, and a frame that is painted then
/// must still be on time.
class NxSlice
{
public:
    static constexpr qint64 Longest = 2; // ms

    explicit NxSlice(qint64 milliseconds = Longest) : m_length(milliseconds) { m_clock.start(); }

    [[nodiscard]] bool isOver() const { return m_clock.hasExpired(m_length); }

private:
    const qint64 m_length; // ms
    QElapsedTimer m_clock;
};
