// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/file_descriptor.h"

#include <chrono>
#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

namespace planner {

/// The planner as a child process. Only this process is ever signalled, and only as long as it runs.
class PlannerProcess {
public:
    /// Starts the program. Throws HostError with exit code 2 when it cannot be started.
    PlannerProcess(const std::filesystem::path& programma, const std::vector<std::string>& argomenti);
    /// Ends the planner if it still runs.
    ~PlannerProcess();
    PlannerProcess(const PlannerProcess&) = delete;
    PlannerProcess& operator=(const PlannerProcess&) = delete;

    /// Becomes readable when the planner has ended.
    int endDescriptor() const { return m_handle.get(); }
    /// Waits for the planner's end; false when it still runs after that time.
    bool waitForEnd(std::chrono::milliseconds limit);
    /// Asks the planner to end, and kills it if it does not.
    void terminate();

    /// True when the planner has ended with exit code 0.
    bool endedWell() const { return m_ended && m_status == 0 && !m_signalled; }
    /// How the planner ended, in Italian.
    std::string descriviFine() const;

private:
    void reap();

    pid_t m_pid = -1;
    FileDescriptor m_handle;
    bool m_ended = false;
    bool m_signalled = false;
    int m_status = 0; // exit code or signal number
};

} // namespace planner
