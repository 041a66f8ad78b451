// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// What a project keeps of one folder of the user. Sections are made by the engine, not kept.
struct NxFolderRecord
{
    int id = 0; ///< Above 1000, counter of the project, never used twice.
    int category = 0; ///< NXVBLMODEL::NxMediaCategoryType.
    int parent = 0; ///< Id of the parent folder within the category.
    /// Place among the siblings, ascending, with gaps between them for later moves.
    qint64 place = 0;
    QString name;
    bool alive = true; ///< False: removed, and kept for the undo step that can bring it back.
};
