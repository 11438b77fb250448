// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/records.h"

#include <string>
#include <vector>

namespace planner::bench {

/// How the counters' five characters are filled: both kinds of padding stand in archives.
enum class Padding { Zeros, Blanks };

/// The month that every record falls into, and that the grid shows.
inline constexpr int ShownYear = 2006;
inline constexpr int ShownMonth = 3;

/// The code number 0 to StaffCodes - 1: two bytes, no two alike, none of them blank.
inline constexpr int StaffCodes = 223 * 223;
std::string staffCode(int index);

/// Equal arguments give equal records.
std::vector<Collaboratore> makeStaff(int count);
std::vector<RigaPlanner> makeRecords(int count, int staffCount, Padding padding);

/// The records as they stand in their file.
template <typename Record>
std::string bytesOf(const std::vector<Record>& records) {
    return {reinterpret_cast<const char*>(records.data()), records.size() * sizeof(Record)};
}

} // namespace planner::bench
