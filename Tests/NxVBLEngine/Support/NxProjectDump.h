// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// All that a project file holds, as text: every table, every column and every row in one order
/// that depends on nothing else. Two files with the same text hold the same.
///
/// The file may be open in this process or in another, and may have a log beside it; it is not
/// changed. Of a file that cannot be read the text is the reason.
[[nodiscard]] QByteArray dumpProjectFile(const QString &path);
