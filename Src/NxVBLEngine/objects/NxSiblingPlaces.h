// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QVector>

class NxEngineFolder;

/// Places for folders among their siblings: far enough apart that a folder can be put between
/// two others without renumbering them, some thirty times at the same spot.
namespace NxSiblingPlaces {

/// Between neighbours that were added one after the other.
constexpr qint64 Gap = qint64(1) << 32;

/// True when a folder fits before the sibling at `spot`; the end always has room.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT bool hasGap(const QVector<NxEngineFolder *> &siblings,
                                                  int spot);
/// The place before the sibling at `spot`, in the middle of the gap, or behind the last one.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT qint64 placeAt(const QVector<NxEngineFolder *> &siblings,
                                                     int spot);
/// The place behind the last child of a folder.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT qint64 placeAtEnd(const NxEngineFolder *parent);

} // namespace NxSiblingPlaces
