// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/records.h"

#include <vector>

namespace planner {

/// The twelve months of `wplanner` for the whole office. Each month's busiest days, about half of its working
/// days, are marked, so that the yearly planner shows when the work piles up; their texts add up the day's
/// lines.
std::vector<MesePlanner> creaMesi(int anno, const std::vector<RigaPlanner>& righe);

} // namespace planner
