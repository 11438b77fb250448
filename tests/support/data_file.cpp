// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/data_file.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace planner::test {

std::string dataFile(std::string_view name) {
    return std::string(PLANNER_TEST_DATA) + "/" + std::string(name);
}

std::string readDataFile(std::string_view name) {
    std::ifstream file(dataFile(name), std::ios::binary);
    EXPECT_TRUE(file) << "no data file " << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace planner::test
