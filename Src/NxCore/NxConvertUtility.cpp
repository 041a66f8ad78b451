// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxConvertUtility.h>

#include <cmath>

namespace {

bool isRate(double fps)
{
    return std::isfinite(fps) && fps > 0.0;
}

/// At least two digits. Rows show lengths: this is called for each of them at each paint.
void appendDigits(QString *text, qint64 number)
{
    if (number >= 100) {
        text->append(QString::number(number));
        return;
    }
    text->append(QLatin1Char(char('0' + number / 10)));
    text->append(QLatin1Char(char('0' + number % 10)));
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
    constexpr int usualLength = 11;
    QString text;
    text.reserve(usualLength);
    for (const qint64 part : {seconds / 3600, seconds / 60 % 60, seconds % 60, rest}) {
        if (!text.isEmpty())
            text.append(QLatin1Char(':'));
        appendDigits(&text, part);
    }
    return text;
}
