// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace planner::test {

/// A seed's name, which says what it holds, and its bytes.
using NamedSeed = std::pair<std::string, std::string>;

/// Requests with their archives and the user's gestures.
std::vector<NamedSeed> requestSeeds();

/// Sizes and records of charts.
std::vector<NamedSeed> chartSeeds();

} // namespace planner::test
