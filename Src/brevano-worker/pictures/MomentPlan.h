// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// Which key frames a film strip shows.
namespace MomentPlan {

/// For each moment the key frame at or before it, the first for moments before all. A moment whose
/// key frame an earlier moment shows already takes the next one, as far as enough of them are left
/// for the moments after it: no two moments show the same. Both lists rise; the answer holds
/// places in `keys`. Empty when there are fewer key frames than moments, or one would stand
/// further than `furthest` from its moment: key frames cannot serve such a film.
[[nodiscard]] std::vector<size_t> keyFrames(const std::vector<int64_t> &keys,
                                            const std::vector<int64_t> &moments, int64_t furthest);

} // namespace MomentPlan
