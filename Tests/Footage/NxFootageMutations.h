// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/// What happens to a file on a bad day.
enum class NxFootageDamage {
    Cut, ///< The end is missing.
    Zeroed, ///< A range is zeros.
    Random, ///< Single bytes are others.
    Swapped, ///< Two boxes or chunks change places; in other files, two ranges.
    Absurd, ///< Sizes, numbers and durations in the header are beyond reason.
    Empty, ///< There are no bytes at all.
};

/// One damage of one recipe's file.
struct NxFootageMutation
{
    QString recipe; ///< Name of the file that is damaged.
    NxFootageDamage damage = NxFootageDamage::Cut;
    quint32 seed = 0; ///< Chooses where and how; the same every time.

    /// What the damaged file is called, e.g. "0041 absurd avc.mp4".
    [[nodiscard]] QString name() const;
    /// The damaged contents; they differ from the whole ones.
    [[nodiscard]] QByteArray applied(const QByteArray &whole) const;
};

namespace NxFootageMutations {

/// At least 300, of files of every kind and damages of every kind. Seeds run from 1 on.
[[nodiscard]] std::vector<NxFootageMutation> all();

} // namespace NxFootageMutations
