// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/json.h"
#include "support/measure.h"

#include <string>
#include <vector>

namespace planner::bench {

// The highest ratio of library to futex that counts as reached.
constexpr double RatioToReach = 1.5;

// Mean microseconds of a round trip, one value for each repetition, in the order measured.
struct Comparison {
    std::string placement;
    Times library;
    Times futex;
};

// Minima are compared: on a busy machine they repeat, means do not.
double ratioOfMinima(const Comparison& comparison);

bool isReached(const std::vector<Comparison>& comparisons);

void printTable(const std::vector<Comparison>& comparisons);

Json toJson(const std::vector<Comparison>& comparisons, int rounds);

} // namespace planner::bench
