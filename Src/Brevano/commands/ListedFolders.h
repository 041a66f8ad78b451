// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>
#include <NxVBLModel/NxMediaTypes.h>

#include <QList>

class CommandLine;
class INxFolderMedia;
class INxFolderMediaManager;

/// Which folders a listing shows.
namespace ListedFolders {

/// What is wrong with the words that name them; empty when all is well.
[[nodiscard]] QString fault(const CommandLine &line, NXVBLMODEL::NxMediaCategoryType category);

/// The folders in their order. In the project's media --section names the section and --folder is
/// a path below it; without both there are all sections. In the other categories the first name of
/// --folder is that of the section; without it there is the section in which the category begins.
/// A folder that is not there is an error.
[[nodiscard]] NxResult<QList<INxFolderMedia *>> chosen(const CommandLine &line,
                                                       NXVBLMODEL::NxMediaCategoryType category,
                                                       INxFolderMediaManager *folders);

} // namespace ListedFolders
