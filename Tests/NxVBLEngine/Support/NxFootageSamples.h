// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/records/NxFootageRecord.h>

/// What might have been read of files.
namespace NxFootageSamples {

/// A film with a value in every field that differs from the default and from that of another
/// media. `camera` tells apart what files share.
[[nodiscard]] NxFootageRecord full(qint64 media, int camera = 1);
/// A file that could not be read.
[[nodiscard]] NxFootageRecord failed(qint64 media);
/// A file of that kind that was read; moving pictures and sound last four seconds.
[[nodiscard]] NxFootageRecord ofKind(NxFootageKind kind, bool hasAudio = false);

} // namespace NxFootageSamples
