// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QString>

#include <vector>

/// Footage as cameras, editors and telephones write it: films of 1920 x 1080, photos of 12
/// megapixels, sound.
namespace CameraFootage {

struct File
{
    QString path;
    NxFootageKind kind = NxFootageKind::Unknown;
};

/// Made with ffmpeg by the first who asks, and kept in the build folder.
[[nodiscard]] const std::vector<File> &files();

} // namespace CameraFootage
