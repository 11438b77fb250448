// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace planner::bench {

/// What each repetition took, in the order measured; the unit is the benchmark's.
using Times = std::vector<double>;

/// The time that `percent` (0 to 100) of all are not above; 0 for no times.
double percentile(Times times, int percent);

/// Minima are compared: on a busy machine they repeat, means do not.
inline double minimum(const Times& times) {
    return percentile(times, 0);
}
inline double median(const Times& times) {
    return percentile(times, 50);
}

/// Keeps the compiler from leaving work out whose result nobody needs.
inline void keep(std::int64_t result) {
    asm volatile("" : : "r"(result) : "memory");
}

/// Nanoseconds that the work takes once.
double timeOnce(const std::function<void()>& work);

/// Runs the works in turns, `repetitions` times each and once before that to warm up, so that whatever else
/// the machine does meets all of them alike. Nanoseconds, in the order of the works.
std::vector<Times> measureInTurns(const std::vector<std::function<void()>>& works, int repetitions);

} // namespace planner::bench
