// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/json.h"
#include "support/measure.h"

#include <string>
#include <vector>

namespace planner::bench {

/// The highest ratios of fill to plain pass: the first to be reached, the second to be aimed at.
inline constexpr double RatioToReach = 3;
inline constexpr double RatioToAimAt = 2;

/// Reading and filling beside the plain pass over the same bytes.
struct FillRatio {
    std::string counters; // how the counters are padded
    Times readAndFill, read, clear, fill, plainPass;

    double ratio() const;
};

/// Time of reading and filling as the records grow.
struct RecordStep {
    int records;
    Times readAndFill;
    Times plainPass;
};

/// Time of a look-up as the staff grows.
struct StaffStep {
    int staff;
    Times lookUp; // nanoseconds of one
};

struct Results {
    int records = 0;
    int staff = 0;
    std::vector<FillRatio> ratios;
    std::vector<RecordStep> recordSteps;
    std::vector<StaffStep> staffSteps;

    double worstRatio() const;
};

void printTables(const Results& results);

Json toJson(const Results& results);

} // namespace planner::bench
