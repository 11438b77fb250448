// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace planner::test {

using Json = nlohmann::ordered_json;

/// What a run of planner-dump left behind.
struct DumpRun {
    int exitCode; // 128 + n when signal n ended it
    std::string out;
    std::string err;

    /// The printed object; throws when it is no JSON.
    Json json() const { return Json::parse(out); }
};

/// Runs planner-dump with the arguments and waits for its end.
DumpRun runDump(const std::vector<std::string>& arguments);

/// A message box of the planner as planner-dump prints it.
Json information(const std::string& text);
Json critical(const std::string& text);

} // namespace planner::test
