// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>

#include <QList>
#include <QString>

class CommandLine;
class INxFolderMedia;

/// The sections of a project's media by the words that scripts use for them.
namespace Sections {

/// "project" or "shared"; empty for any other folder.
[[nodiscard]] QString wordOf(const INxFolderMedia *section);

/// The section that --section names, else the project's own. An unknown word is an error.
[[nodiscard]] NxResult<INxFolderMedia *> chosen(const CommandLine &line,
                                                const QList<INxFolderMedia *> &sections);

/// What is wrong with the value of --section; empty when all is well.
[[nodiscard]] QString fault(const CommandLine &line);

} // namespace Sections
