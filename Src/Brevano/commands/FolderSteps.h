// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>

#include <QString>

class INxFolderMedia;
class INxFolderMediaManager;
class INxUndoStack;

/// The steps in which several commands work on folders. Errors are sentences for the user.
namespace FolderSteps {

/// The name as it is kept: trimmed. Refused when it is empty or longer than 255 characters.
[[nodiscard]] NxResult<QString> checkedName(const QString &name);

/// The folder of a path below the section; the section itself for an empty path.
[[nodiscard]] NxResult<INxFolderMedia *> existing(INxFolderMedia *section, const QString &path);
/// The same, but never the section, which cannot be changed.
[[nodiscard]] NxResult<INxFolderMedia *> changeable(INxFolderMedia *section, const QString &path);

/// The folder of a path, made with those above it where it is not there: one undo step.
[[nodiscard]] NxResult<INxFolderMedia *> made(INxFolderMediaManager *manager, INxUndoStack *stack,
                                              INxFolderMedia *section, const QString &path);

/// Null when no child has this name.
[[nodiscard]] INxFolderMedia *childNamed(const INxFolderMedia *parent, const QString &name);

} // namespace FolderSteps
