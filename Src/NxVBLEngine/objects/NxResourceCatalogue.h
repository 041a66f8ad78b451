// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <QString>
#include <QVector>

/// A section of a category: the fixed folders below the hidden root.
struct NxSectionEntry
{
    int id = 0; ///< NXVBLMODEL::NxFolderKind names the fixed ones; 1 is where a category begins.
    NXVBLMODEL::NxFolderKind kind = NXVBLMODEL::fkNone;
    QString name; ///< Translated.
    bool online = false; ///< Keeps the order of a service.
    bool takesMedia = false; ///< The user's files may be added.
    bool takesFolders = false; ///< The user may make folders in it.
};

/// A resource that every project offers.
struct NxResourceEntry
{
    qint64 id = 0; ///< The same in every project and every version of the program.
    int category = 0;
    int section = 0; ///< Its home.
    NXVBLMODEL::NxMediaType type = NXVBLMODEL::mtNone;
    int subKind = NXVBLMODEL::mskNone;
    int kindCode = NXVBLMODEL::mkcNone;
    int licence = NXVBLMODEL::lsFree;
    QString name; ///< Translated.
    QString categoryText; ///< Translated; what resources are grouped by.
    int listOrder = 0;
    bool needsDownload = false;
};

/// What the engine itself brings into every project.
namespace NxResourceCatalogue {

/// In the order in which they are listed; empty for a category that is none.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QVector<NxSectionEntry> sections(int category);
/// In the order of their sections and list order. Category 0 and the reserved one have none.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QVector<NxResourceEntry> resources(int category);

} // namespace NxResourceCatalogue
