// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMetaType>

/// A fraction as media files carry it: a frame rate of 24000/1001, a time base of 1/90000.
///
/// 0/0 and every other fraction over 0 mean "unknown". Fractions are kept as they were read,
/// never reduced: 50/2 and 25/1 are different records of the same rate.
struct NxRational
{
    int num = 0;
    int den = 0;

    /// True when the fraction has a value.
    [[nodiscard]] constexpr bool isValid() const { return den != 0; }
    /// The value, 0.0 when there is none.
    [[nodiscard]] constexpr double toDouble() const { return den == 0 ? 0.0 : double(num) / den; }

    friend constexpr bool operator==(const NxRational &a, const NxRational &b)
    {
        return a.num == b.num && a.den == b.den;
    }
    friend constexpr bool operator!=(const NxRational &a, const NxRational &b) { return !(a == b); }
};

Q_DECLARE_METATYPE(NxRational)
Q_DECLARE_TYPEINFO(NxRational, Q_PRIMITIVE_TYPE);
