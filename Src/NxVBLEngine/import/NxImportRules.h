// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/disk/NxFileProbe.h>

#include <QString>

/// What is taken into a project and what is not: by the name, and by what can be known of a file
/// without opening it. Where a reason is answered, an empty one means: taken.
namespace NxImportRules {

/// The longest name of a folder in a project.
constexpr int LongestFolderName = 255;

/// Why a file that the user named is not taken. What is both importable and unwanted is taken:
/// whoever names a file means it.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QString refusalOfNamed(const QString &path);
/// Whether a file is taken out of a folder; there the unwanted suffixes always win.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT bool isTakenFromFolder(const QString &fileName);
/// Why a folder of this name cannot stand in a project.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QString refusalOfFolderName(const QString &name);
/// Why a file of these facts cannot be read.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QString unreadableReason(const NxFileFacts &facts);
/// Why something that is neither file nor folder is not taken.
[[nodiscard]] QString refusalOfSpecial();
[[nodiscard]] QString refusalOfLongPath();
[[nodiscard]] QString refusalOfInvalidName();
[[nodiscard]] QString danglingLinkReason();
[[nodiscard]] QString unreadableFolderReason(const QString &systemWords);

} // namespace NxImportRules
