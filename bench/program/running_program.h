// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace planner::bench {

/// A program that has been started; it is killed when the object goes.
class RunningProgram {
public:
    /// `folder` is where it runs. Throws std::system_error when it cannot be started.
    RunningProgram(const std::string& program, std::vector<std::string> arguments, const std::string& folder);
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    /// Writes a line to its standard input.
    void tell();
    /// Waits for its end; throws std::runtime_error unless it ends well.
    void awaitEnd();
    /// What it has in memory, pages shared with other programs included.
    double residentKilobytes() const;

private:
    pid_t m_process = 0; // 0 once it has ended
    int m_input = -1;
};

} // namespace planner::bench
