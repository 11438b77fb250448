// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace planner::bench {

/// The yardstick: one pass over the bytes of a file of appointment records that reads year, month, day and
/// the eleven counters of each record as whole numbers. Returns the sum of all of them.
std::int64_t plainPass(std::string_view bytes);

} // namespace planner::bench
