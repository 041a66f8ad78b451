// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Support/NxTempDir.h>

#include <QString>

/// Small films of a test, made by the ffmpeg program.
namespace MadeClip {

/// The path of a file of that name in the folder, made by these arguments, parted by spaces; a
/// clip of that folder may be an input. Ends the program with a message when that fails.
[[nodiscard]] QString make(const NxTempDir &dir, const QString &name, const QString &arguments);

/// An input of moving pictures, 25 a second.
[[nodiscard]] QString pictures(int frames, const char *size = "160x90");
/// The same full of noise, which needs a hundred thousand bytes a picture.
[[nodiscard]] QString noise(int frames);
/// An input of sound.
[[nodiscard]] QString sound(int seconds);

} // namespace MadeClip
