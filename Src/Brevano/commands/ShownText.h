// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// Texts as they are put on a terminal.
namespace ShownText {

/// One line, whatever the text holds: a file name may contain line ends and the codes that
/// terminals obey. Control characters become "\n", "\t", "\x1b", "\u2028" and their likes.
[[nodiscard]] QString oneLine(const QString &text);

/// How many columns of a terminal the text takes; emoji and East Asian characters take two.
[[nodiscard]] int columns(const QString &text);

/// "640 bytes", "1.5 MiB".
[[nodiscard]] QString size(qint64 bytes);

/// "1 file", "3 files".
[[nodiscard]] QString count(qint64 number, const char *one, const char *many);

} // namespace ShownText
