// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QString>

/// Frame counts as times. Rates are in frames per second.
class NXCORE_EXPORT NxConvertUtility
{
public:
    /// The duration in milliseconds, rounded to the nearest; 0 when the rate is not above 0.
    [[nodiscard]] static qint64 frame2Msec(qint64 frames, double fps);

    /// "hh:mm:ss:ff": whole seconds, and the whole frames that remain. Hours go on beyond 99;
    /// they never wrap. "00:00:00:00" when there is nothing to count.
    [[nodiscard]] static QString frame2String(qint64 frames, double fps);
};
