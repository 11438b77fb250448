// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/system/child_process.h"

#include <chrono>
#include <string>

namespace planner {

/// The planner as a child process. Only this process is ever ended, and only as long as it runs.
class PlannerProcess {
public:
    /// Starts the program. Throws HostError with exit code 2 when it cannot be started.
    PlannerProcess(const std::filesystem::path& programma, const std::vector<std::string>& argomenti);
    /// Ends the planner if it still runs.
    ~PlannerProcess();
    PlannerProcess(const PlannerProcess&) = delete;
    PlannerProcess& operator=(const PlannerProcess&) = delete;

    /// Becomes ready when the planner has ended.
    Waitable endWaitable() const { return m_process.waitable(); }
    /// Waits for the planner's end; false when it still runs after that time.
    bool waitForEnd(std::chrono::milliseconds limit);
    /// Asks the planner to end, and kills it if it does not.
    void terminate();

    /// True when the planner has ended with exit code 0.
    bool endedWell();
    /// How the planner ended, in Italian.
    std::string descriviFine();

private:
    ChildProcess m_process;
};

} // namespace planner
