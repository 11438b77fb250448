// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/measure.h"

#include <algorithm>
#include <chrono>

namespace planner::bench {

double percentile(Times times, int percent) {
    if (times.empty()) {
        return 0.0;
    }
    const std::size_t at = times.size() * static_cast<std::size_t>(percent) / 100;
    const auto found = times.begin() + static_cast<std::ptrdiff_t>(std::min(at, times.size() - 1));
    std::nth_element(times.begin(), found, times.end());
    return *found;
}

double timeOnce(const std::function<void()>& work) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

std::vector<Times> measureInTurns(const std::vector<std::function<void()>>& works, int repetitions) {
    for (const auto& work : works) {
        work();
    }
    std::vector<Times> times(works.size());
    for (int i = 0; i < repetitions; ++i) {
        for (std::size_t which = 0; which < works.size(); ++which) {
            times[which].push_back(timeOnce(works[which]));
        }
    }
    return times;
}

} // namespace planner::bench
