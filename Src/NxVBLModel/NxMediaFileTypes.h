// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QString>

class INxMediaInfo;

/// What the names of files tell: which can be imported, which never are, and what they hold.
namespace NXVBLMODEL {

/// Lists of suffixes. A file may stand on several.
enum class NxSuffixList {
    Video,
    Image,
    Audio,
    Subtitle,
    Unsupported, ///< Never taken out of a folder.
};

/// A list as upper-case wildcard patterns, "*.MP4;*.FLV;...", the form of file dialogs.
[[nodiscard]] NXVBLMODEL_EXPORT QString suffixPatterns(NxSuffixList list);
/// Case is ignored; `suffix` is without its point.
[[nodiscard]] NXVBLMODEL_EXPORT bool isOnSuffixList(const QString &suffix, NxSuffixList list);
/// On the video, image, audio or subtitle list.
[[nodiscard]] NXVBLMODEL_EXPORT bool isImportableSuffix(const QString &suffix);

/// What a suffix tells about a file before it is read.
struct NxSuffixFacts
{
    NxMediaType type = mtNone; ///< mtNone: not importable.
    NxMediaSubKind subKind = mskNone;
    NxMediaKindCode kindCode = mkcNone;
    /// Kind and streams without numbers; null for a suffix that is not importable. Static.
    const INxMediaInfo *provisionalInfo = nullptr;
};

/// Case is ignored; `suffix` is without its point.
[[nodiscard]] NXVBLMODEL_EXPORT NxSuffixFacts suffixFacts(const QString &suffix);

} // namespace NXVBLMODEL
