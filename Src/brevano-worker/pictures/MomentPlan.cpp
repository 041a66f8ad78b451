// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/pictures/MomentPlan.h>

#include <algorithm>
#include <cstdlib>

std::vector<size_t> MomentPlan::keyFrames(const std::vector<int64_t> &keys,
                                          const std::vector<int64_t> &moments, int64_t furthest)
{
    if (keys.size() < moments.size())
        return {};
    std::vector<size_t> plan;
    for (size_t moment = 0; moment < moments.size(); ++moment) {
        const auto after = std::upper_bound(keys.begin(), keys.end(), moments[moment]);
        const auto atOrBefore = size_t(std::max<std::ptrdiff_t>(after - keys.begin() - 1, 0));
        const size_t firstFree = plan.empty() ? 0 : plan.back() + 1;
        const size_t last = keys.size() - (moments.size() - moment);
        const size_t key = std::min(std::max(atOrBefore, firstFree), last);
        if (std::abs(keys[key] - moments[moment]) > furthest)
            return {};
        plan.push_back(key);
    }
    return plan;
}
