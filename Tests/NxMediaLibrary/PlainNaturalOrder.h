// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPair>
#include <QString>
#include <QVector>

/// The natural order of names in the plainest way: two names are read into lists and compared pair
/// by pair. Nothing is shared with the keys that tests compare it with.
namespace PlainNaturalOrder {

enum class Class { Symbol, Number, Letter };

struct Element
{
    Class elementClass = Class::Symbol;
    int rank = 0; // Of the symbol, or of the letter's script.
    uint code = 0;
    QString digits; // As values, '0' to '9'.
    QVector<uint> marks; // Written behind the element.
    int width = 0;
};

struct Name
{
    QVector<Element> elements;
    QVector<uint> leadingMarks;
    QVector<QPair<int, uint>> minors; // Place and weight.
};

[[nodiscard]] Name read(const QString &text);
/// -1, 0 or 1.
[[nodiscard]] int compareNames(const Name &a, const Name &b);
[[nodiscard]] int compare(const QString &a, const QString &b);

} // namespace PlainNaturalOrder
