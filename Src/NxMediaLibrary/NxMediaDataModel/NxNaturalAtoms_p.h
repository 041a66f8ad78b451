// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

/// One step in reading a name: what a character counts as, or one part of what it stands for.
struct NxNaturalAtom
{
    enum class Kind : quint8 {
        Element, ///< A symbol or a letter: bytes stand in the key.
        Digit, ///< value is 0 to 9.
        Mark, ///< value is the code point.
        Minor, ///< value is the weight: controls, apostrophe, hyphen.
    };
    enum class Width : quint8 { Ordinary, Narrow, Wide };

    Kind kind = Kind::Element;
    Width width = Width::Ordinary;
    quint8 size = 0; ///< How many of the bytes count.
    uchar bytes[4] = {};
    quint32 value = 0;
};

/// A few atoms, valid until the next call of nxNaturalAtoms() on the same thread.
struct NxNaturalAtoms
{
    const NxNaturalAtom *first = nullptr;
    int count = 0;

    [[nodiscard]] const NxNaturalAtom *begin() const { return first; }
    [[nodiscard]] const NxNaturalAtom *end() const { return first + count; }
};

/// The first byte of each kind of element. The gaps between them are the room that each needs.
enum NxNaturalLead : uchar {
    nlEnd = 0x00,
    nlFirstSymbol = 0x02, ///< The ranked symbols, one byte each.
    nlOtherSymbol = 0x26, ///< And three bytes of code point.
    nlLoneSurrogate = 0x27, ///< And two bytes of value.
    nlFirstNumber = 0x28, ///< Numbers of few digits: the first byte counts them.
    nlLongNumber = 0x5F, ///< And four bytes of count.
    nlFirstLetter = 0x60, ///< a to z, one byte each.
    nlOtherLatin = 0x7A, ///< This and the following: and three bytes of code point.
    nlGreek = 0x7B,
    nlCyrillic = 0x7C,
    nlHebrew = 0x7D,
    nlArabic = 0x7E,
    nlOtherLetter = 0x7F,
};

/// What a code point counts as; a surrogate that stands alone is one, too. Any thread.
[[nodiscard]] NxNaturalAtoms nxNaturalAtoms(uint codePoint);
/// The same for an ASCII character, which is always one atom. Valid for ever.
[[nodiscard]] const NxNaturalAtom &nxNaturalAsciiAtom(uchar character);
