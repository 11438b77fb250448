// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace planner::bench {

// The highest ratio of library to futex that counts as reached.
constexpr double RATIO_TO_REACH = 1.5;

// Mean microseconds of a round trip, one value for each repetition, in the order measured.
struct Comparison {
    std::string placement;
    std::vector<double> library;
    std::vector<double> futex;
};

// Minima are compared: on a busy machine they repeat, means do not.
double ratioOfMinima(const Comparison& comparison);

bool isReached(const std::vector<Comparison>& comparisons);

void printTable(const std::vector<Comparison>& comparisons);

// False when the file cannot be written.
bool writeJson(const std::vector<Comparison>& comparisons, int rounds, const std::string& path);

} // namespace planner::bench
