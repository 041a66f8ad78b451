// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// A home for a benchmark of the window, so that nothing of the user's is read or written:
/// settings, caches, footage and projects lie in a temporary folder, which programs that are
/// started share.
namespace PanelYard {

/// To be called before the application object is made; it also chooses a screen that nobody sees.
void settle();
/// Below the temporary folder.
[[nodiscard]] QString path(const QString &name);

/// A project of so many clips, each of which is a file, was read before, and has its cover in the
/// cache. They were shot on 3,000 days. Made once a process.
[[nodiscard]] QString project(int clips);
/// A project of the sample footage, read to the end.
[[nodiscard]] QString sampleProject();
/// A folder with so many small files that nobody has read, in ten folders. Another one at each
/// call.
[[nodiscard]] QString freshFiles(int files);

constexpr int Days = 3'000;

} // namespace PanelYard
