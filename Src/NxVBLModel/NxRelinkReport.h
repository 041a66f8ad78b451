// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaRef.h>

#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVector>

/// By what a file was recognised as the one that a media was made from.
enum class NxRelinkMatch {
    None, ///< Not found.
    Fingerprint, ///< Its contents are the same.
    /// Its name and size are the same, and its length where that is known.
    NameSizeDuration,
    /// Several files match equally well, or one that was not looked at might: it is for the user to
    /// choose.
    Ambiguous,
};

/// What was found for one media.
struct NxRelinkFinding
{
    NxMediaRef media; ///< Null when it was removed, or given another file, meanwhile.
    NxRelinkMatch match = NxRelinkMatch::None;
    /// Absolute paths in natural order: the one file, or all that match equally well.
    QStringList paths;
};

/// What a search for missing files came to.
struct NxRelinkReport
{
    QVector<NxRelinkFinding> findings; ///< One for each media that was looked for, in their order.
    QStringList unreadable; ///< Sentences about folders and files that could not be looked into.
    bool cancelled = false; ///< What was found until then stands in the report.
};

Q_DECLARE_METATYPE(NxRelinkReport)
