// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Puts media of a project file on a timeline, as the editor around the panel does.
namespace CutProject {

/// A clip of each of these files, one after the other, in one undo step. Fails the test function
/// when that does not work.
void use(const QString &project, const QStringList &paths);
/// How many clips all timelines of a project hold.
[[nodiscard]] int clips(const QString &project);

} // namespace CutProject
