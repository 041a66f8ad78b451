// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>

class QRandomGenerator;

/// The places where headers keep sizes, counts, rates and durations.
namespace NxFootageNumbers {

/// How many known fields the file has: 0 for kinds that keep no such numbers.
[[nodiscard]] int fieldsOf(const QByteArray &bytes);
/// Some of those fields become the largest, the most negative or no number at all; in files
/// without them some of their first bytes do.
[[nodiscard]] QByteArray absurd(QByteArray bytes, QRandomGenerator *random);

} // namespace NxFootageNumbers
