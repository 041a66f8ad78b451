// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxFootageFacts.h>

extern "C" {
#include <libavformat/avformat.h>
}

/// What a stream of moving pictures says of their looks.
namespace VideoStream {

/// Fills size, rotation, codec, colours and bit rate. The size counts pixels as they are stored,
/// as editors list it, also where the pixels are no squares. A size that cannot be stays 0.
void read(const AVStream *stream, NxFootageFacts *facts);

/// Degrees clockwise by which the pictures are to be turned: 0, 90, 180 or 270. Of a mirrored
/// picture the turn after mirroring left and right.
[[nodiscard]] int rotation(const AVStream *stream);

/// "avc1"; empty when the container has no such name.
[[nodiscard]] QString fourCharacters(uint32_t tag);

} // namespace VideoStream
