// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace planner::test {

/// Where a file of tests/data is.
std::string dataFile(std::string_view name);

/// The whole content of a file of tests/data; a failed expectation and "" when it cannot be read.
std::string readDataFile(std::string_view name);

} // namespace planner::test
