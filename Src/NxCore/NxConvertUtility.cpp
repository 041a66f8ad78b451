// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxConvertUtility.h>

#include <cmath>

namespace {

bool isRate(double fps)
{
    return std::isfinite(fps) && fps > 0.0;
}

QString twoDigits(qint64 number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

qint64 NxConvertUtility::frame2Msec(qint64 frames, double fps)
{
    if (!isRate(fps))
        return 0;
    return qRound64(double(frames) * 1000.0 / fps);
}

QString NxConvertUtility::frame2String(qint64 frames, double fps)
{
    qint64 seconds = 0;
    qint64 rest = 0;
    if (frames > 0 && isRate(fps)) {
        seconds = qint64(std::floor(double(frames) / fps));
        rest = qint64(std::floor(double(frames) - double(seconds) * fps));
    }
    return QStringLiteral("%1:%2:%3:%4")
        .arg(twoDigits(seconds / 3600), twoDigits(seconds / 60 % 60), twoDigits(seconds % 60),
             twoDigits(rest));
}
