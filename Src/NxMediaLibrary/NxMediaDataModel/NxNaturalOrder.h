// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <QByteArray>
#include <QString>

#include <vector>

/// The order in which people expect names: "take 9" before "take 10", "B" beside "b".
///
/// On Windows it is the order of the system's own file manager, by the system's own comparison.
/// Elsewhere these rules give the same picture:
///
/// - A name is read as a list of elements. A run of decimal digits is one number, whatever script
///   the digits are of and however long the run is; everything else is a symbol or a letter.
///   Symbols stand before numbers, numbers before letters. A list that is the beginning of another
///   stands before it.
/// - Hyphens, apostrophes and control characters (but tab, line feed, vertical tab, form feed and
///   carriage return) are no elements: "co-op" stands with "coop". They end a run of digits.
/// - Symbols: white space, then ! " # $ % & ( ) * , . / : ; ? @ [ \ ] ^ _ ` { | } ~ + < = >, then
///   all others by code point, emoji and format characters included, then halves of surrogate
///   pairs that stand alone.
/// - Numbers: by value; of equal ones the one with more leading zeros is first.
/// - Letters: by base letter, without case. A letter is decomposed, which takes ligatures and width
///   forms apart; sharp s counts as "ss", the letters ae, oe and thorn as two, and o, l, d and h
///   with a stroke as the bare letter with a mark. Scripts: Latin, Greek, Cyrillic, Hebrew, Arabic,
///   then all others by code point; within a script by code point. Letter numbers and the vowel
///   signs of Indic scripts are letters. Han letters so stand by code point, not by sound.
/// - Names that are equal so far differ by their marks, letter by letter: none first, then by code
///   point in the order they are written. A mark is what combines with the letter before it. Then
///   by width: ordinary, narrow, wide; a number is as wide as its widest digit.
/// - Names that are still equal differ by their hyphens, apostrophes and controls, one by one: the
///   name whose next one stands later is first; at the same place a control is before an apostrophe
///   and that before a hyphen, controls by code; then the name with fewer is first.
///
/// Names that differ in nothing of this are equal, and whoever sorts keeps their order.
///
/// All functions may be called from any thread.
class NXMEDIALIBRARY_EXPORT NxNaturalOrder
{
public:
    NxNaturalOrder() = delete;

    /// Bytes whose plain order is the order described above. They are no text, and only good for
    /// comparing with other keys of this process. On Windows compare() decides, not the key.
    [[nodiscard]] static QByteArray key(const QString &name);

    /// Negative when a stands before b, 0 when they are equal, positive otherwise.
    [[nodiscard]] static int compare(const QString &a, const QString &b);

    /// The places of the names in order: the first element tells which name is first. Equal names
    /// keep their order, whatever the direction. Much faster than sorting by compare().
    [[nodiscard]] static std::vector<quint32> sorted(const std::vector<QString> &names,
                                                     bool descending);
};
