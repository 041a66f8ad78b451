// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QString>

extern "C" {
#include <libavformat/avformat.h>
}

class Container;

/// What cameras and recorders write into a container beside pictures and sound.
namespace SourceTags {

/// A tag of that name, in whatever case, of the container itself, else of the stream that comes
/// first among those which have it; empty when there is none.
[[nodiscard]] QString text(const Container &container, const char *name);

/// Fills camera, timecode, reel and shot date.
void read(const Container &container, NxFootageFacts *facts);

} // namespace SourceTags
