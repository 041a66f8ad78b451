// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NxNaturalAtoms_p.h"

/// The bytes that the lists of a key are made of. Each function writes at out and answers the place
/// behind what it wrote.
namespace NxNaturalKeyBytes {

constexpr quint32 FewDigits = nlLongNumber - nlFirstNumber;
constexpr quint32 ManyZeros = 0xFF;
constexpr quint32 NearPlaces = 0xC0; // Places of hyphens that take one byte.
constexpr uchar FarPlace = 0x01;
constexpr uchar NextElement = 0x01;
constexpr uchar MarkFollows = 0x02;

inline uchar *putBigEndian(uchar *out, quint32 value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        *out++ = uchar(value >> shift);
    return out;
}

/// Two digits a byte; digits are numbers or characters, whose lower four bits are the number.
template<typename Digit>
uchar *putDigits(uchar *out, const Digit *digit, quint32 count)
{
    for (quint32 i = 0; i + 1 < count; i += 2)
        *out++ = uchar(((digit[i] & 0xF) << 4) | (digit[i + 1] & 0xF));
    if (count % 2)
        *out++ = uchar((digit[count - 1] & 0xF) << 4);
    return out;
}

/// Longer is larger, then digit by digit, then fewer leading zeros is larger.
template<typename Digit>
uchar *putNumber(uchar *out, const Digit *digits, quint32 count)
{
    quint32 zeros = 0;
    while (zeros < count && (digits[zeros] & 0xF) == 0)
        ++zeros;
    const quint32 significant = count - zeros;
    if (significant < FewDigits) {
        *out++ = uchar(nlFirstNumber + significant);
    } else {
        *out++ = nlLongNumber;
        out = putBigEndian(out, significant);
    }
    out = putDigits(out, digits + zeros, significant);
    if (zeros < ManyZeros) {
        *out++ = uchar(ManyZeros - zeros);
        return out;
    }
    *out++ = 0;
    return putBigEndian(out, ~zeros);
}

/// A mark that belongs to the element before it.
inline uchar *putMark(uchar *out, quint32 codePoint)
{
    *out++ = MarkFollows;
    *out++ = uchar(codePoint >> 16);
    *out++ = uchar(codePoint >> 8);
    *out++ = uchar(codePoint);
    return out;
}

/// A later place is smaller, and every place is larger than the end of the list.
inline uchar *putMinor(uchar *out, quint32 place, uchar weight)
{
    if (place < NearPlaces) {
        *out++ = uchar(0xFF - place);
    } else {
        *out++ = FarPlace;
        out = putBigEndian(out, ~place);
    }
    *out++ = weight;
    return out;
}

} // namespace NxNaturalKeyBytes
