// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/system/waiting.h"

#include <filesystem>
#include <vector>

namespace planner {

/// How a process ended: with an exit code, or by a signal of that number.
struct ProcessEnd {
    int number;
    bool signalled;
};

/// Another program that this one has started. It goes on when the object goes.
class ChildProcess {
public:
    /// Throws std::system_error when it cannot be started.
    ChildProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Becomes ready when the process has ended.
    Waitable waitable() const { return m_handle; }
    /// Nothing as long as it runs.
    const std::optional<ProcessEnd>& end();
    /// Asks it to end by itself; false where the system has no way to ask.
    bool askToEnd() const;
    void kill() const;

private:
    Waitable m_handle = NoWaitable;
    std::optional<ProcessEnd> m_end;
};

} // namespace planner
