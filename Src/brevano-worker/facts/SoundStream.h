// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxFootageFacts.h>

class Container;

/// What a container says of its sound.
namespace SoundStream {

/// Sound that has a frame rate is told in frames of this one.
constexpr NxRational Rate = {25, 1};

/// Fills sample rate, channels, codec and bit rate; the container must have audio. Numbers that
/// cannot be stay 0.
void read(const Container &container, NxFootageFacts *facts);
/// Fills rate, frames and duration of a file that has nothing but sound.
void readLength(const Container &container, NxFootageFacts *facts);

} // namespace SoundStream
