// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>

#include <vector>

/// The picture that stands for sound.
namespace Waveform {

/// As large as a cover. `peaks` from 0 to 1, from the sound's beginning to its end; the louder,
/// the further a column reaches from the middle line to both sides.
[[nodiscard]] QImage of(const std::vector<float> &peaks);

} // namespace Waveform
