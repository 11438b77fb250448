// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

namespace planner::test {

/// What hangs whoever opens it and expects a file.
inline void makeFifo(const std::string& path) {
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0) << path;
}

} // namespace planner::test
