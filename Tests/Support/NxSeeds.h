// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QTest>

/// Adds a column "seed" and the rows of a random test: the seeds 1 to \a count, the same in every
/// run. NX_SEED in the environment adds one of your own.
inline void nxAddSeeds(quint32 count)
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= count; ++seed)
        QTest::addRow("seed %u", seed) << seed;
    bool isGiven = false;
    const quint32 given = qEnvironmentVariable("NX_SEED").toUInt(&isGiven);
    if (isGiven)
        QTest::addRow("given seed %u", given) << given;
}
