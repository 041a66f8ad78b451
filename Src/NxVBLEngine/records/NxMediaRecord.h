// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <limits>

/// A time in milliseconds since 1970 (UTC) that is not known.
constexpr qint64 NxNoTime = std::numeric_limits<qint64>::min();

/// What a project keeps of one media. Memory, store and undo all speak in these.
struct NxMediaRecord
{
    qint64 id = 0; ///< Counter of the project, never used twice.
    int category = 0; ///< NXVBLMODEL::NxMediaCategoryType.
    int folder = 0; ///< Id of the folder within the category.
    /// Place among the folder's own items: they are listed by ascending place. A counter of the
    /// project, taken anew by an add and by a move, so no change ever renumbers another media.
    qint64 place = 0;
    QString name;
    QString path; ///< Absolute, cleaned, as imported.
    QString canonicalPath; ///< Empty when the same as `path`.
    QString relativePath; ///< From the project's folder; empty when there is no way.
    qint64 size = -1; ///< Bytes; -1 unknown.
    qint64 created = NxNoTime; ///< ms UTC.
    qint64 modified = NxNoTime; ///< ms UTC.
    qint64 favourite = NxNoTime; ///< When it became a favourite, ms UTC; NxNoTime: it is none.
    int importKind = 0; ///< NXVBLMODEL::NxMediaImportType.
    int kindCode = 0; ///< NXVBLMODEL::NxMediaKindCode where the suffix does not tell it.
    bool alive = true; ///< False: removed, and kept for the undo step that can bring it back.
};
