// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>

class INxAbstractMedia;

/// Asks the processor for the media that come next in a list: a walk over many that lie scattered
/// in memory then does not wait for each of them. Always inline: as a function without effects its
/// calls would be left out.
Q_ALWAYS_INLINE void nxFetchMediaAhead(const QList<INxAbstractMedia *> &media, int at)
{
#if defined(__GNUC__)
    constexpr int Ahead = 12;
    constexpr int MediaSize = 192; // About what an engine's media takes.
    constexpr int LineSize = 64;
    if (at + Ahead >= media.size() || !media.at(at + Ahead))
        return;
    const char *object = reinterpret_cast<const char *>(media.at(at + Ahead));
    for (int offset = 0; offset < MediaSize; offset += LineSize)
        __builtin_prefetch(object + offset);
#else
    Q_UNUSED(media)
    Q_UNUSED(at)
#endif
}
