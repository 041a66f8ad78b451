// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

#include <vector>

/// Finds the local day of many moments, by a table of midnights where that is worth its making.
class NxLocalDays
{
public:
    /// Milliseconds since 1970, UTC: the moments that will be asked for.
    explicit NxLocalDays(const std::vector<qint64> &moments);

    /// The Julian day number. Any moment may be asked for.
    [[nodiscard]] qint64 julianDay(qint64 moment) const;

private:
    qint64 m_firstDay = 0;
    std::vector<qint64> m_midnights; // From the first day on; the last one closes the table.
};
