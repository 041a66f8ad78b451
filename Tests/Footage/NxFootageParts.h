// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QVector>

class QRandomGenerator;

/// The parts of which a file consists: boxes of MP4, MOV and HEIC, chunks of AVI, WAV and WebP.
namespace NxFootageParts {

struct Part
{
    int begin = 0;
    int end = 0;

    [[nodiscard]] int size() const { return end - begin; }
};

/// The parts that stand beside each other at the top level; empty for a file that has none.
[[nodiscard]] QVector<Part> partsOf(const QByteArray &bytes);
/// Two parts change places; in a file without parts, two ranges of equal length.
[[nodiscard]] QByteArray swapped(const QByteArray &bytes, QRandomGenerator *random);

} // namespace NxFootageParts
