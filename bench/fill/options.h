// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>

namespace planner::bench {

struct Options {
    int repetitions = 25;
    std::string json; // file to write; empty for none
};

/// Reads the arguments that follow the program's name; nothing when they cannot be understood.
std::optional<Options> parseOptions(std::span<const char* const> arguments);

} // namespace planner::bench
