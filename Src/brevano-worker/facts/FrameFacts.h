// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxFootageFacts.h>

class Container;

/// How many frames moving pictures have, how fast they come and how long they last.
///
/// The container's own numbers hold: its count of frames, else the length of the stream of
/// pictures times its average rate. Where it has neither, both ends of the file tell the length.
/// Whether the rate varies is told by the container's index; without one by the first few MiB,
/// so that a rate which varies later only is not noticed.
namespace FrameFacts {

/// Fills rate, frames, duration and `variableRate`; the container must have video. Packets come
/// from the beginning afterwards.
void read(Container *container, NxFootageFacts *facts);
/// The same for a GIF, whose pictures are counted one by one; 1 is a still picture.
void readGif(Container *container, NxFootageFacts *facts);

} // namespace FrameFacts
