// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/json.h"

#include <functional>
#include <string_view>
#include <vector>

namespace planner::bench {

/// A number from 1 on that the command line may set by `key N`.
struct Count {
    std::string_view key;
    int* value;
};

/// The main program of a benchmark: sets the counts, runs `measure`, which prints its tables and returns its
/// figures, and writes these where --json FILE says. Returns the exit code: 2 for arguments that cannot be
/// understood, 1 when `measure` throws or the file cannot be written.
int benchmark(int argc, char* const argv[], const std::vector<Count>& counts,
              const std::function<Json()>& measure);

/// What the tables say of a figure that has something to reach.
inline const char* reachedOrMissed(bool reached) {
    return reached ? "reached" : "missed";
}

} // namespace planner::bench
