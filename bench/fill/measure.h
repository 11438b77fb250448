// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace planner::bench {

/// Nanoseconds of each repetition, in the order measured.
using Times = std::vector<double>;

/// Minima are compared: on a busy machine they repeat, means do not. 0 for no times.
double minimum(const Times& times);
double median(Times times);

/// Keeps the compiler from leaving work out whose result nobody needs.
inline void keep(std::int64_t result) {
    asm volatile("" : : "r"(result) : "memory");
}

/// Nanoseconds that the work takes once.
double timeOnce(const std::function<void()>& work);

/// Runs the works in turns, `repetitions` times each and once before that to warm up, so that whatever else
/// the machine does meets all of them alike. The times are in the order of the works.
std::vector<Times> measureInTurns(const std::vector<std::function<void()>>& works, int repetitions);

} // namespace planner::bench
