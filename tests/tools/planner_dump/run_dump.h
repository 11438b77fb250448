// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace planner::test {

/// What a run of planner-dump left behind.
struct DumpRun {
    int exitCode; // -1 when it did not end by itself
    std::string out;
    std::string err;

    /// The printed object; throws when it is no JSON.
    nlohmann::ordered_json json() const { return nlohmann::ordered_json::parse(out); }
};

/// Runs planner-dump with the arguments and waits for its end.
DumpRun runDump(const std::vector<std::string>& arguments);

} // namespace planner::test
