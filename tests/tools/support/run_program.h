// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

namespace planner::toolstest {

/// A program to run, with its descendants in a process group of their own.
struct Run {
    std::string program;
    std::vector<std::string> arguments;
    std::map<std::string, std::string> environment; // on top of this process's
    std::string
        interruptAfter; // asks the program to end when its output holds this text, where the system can ask
};

struct RunResult {
    int exitCode = -1;   // 128 + n when signal n ended it
    bool inTime = false; // false: was killed at the deadline
    std::string output;
    std::string errors;
};

/// Runs the program until it and all that holds its output have ended, or kills the whole group at a deadline
/// that only a hang exceeds.
RunResult run(const Run& what);

} // namespace planner::toolstest
