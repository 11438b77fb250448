// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <sys/types.h>

namespace planner::ipctest {

// How long anything that must happen may take: far more than it needs, so that only a hang exceeds it.
constexpr std::chrono::seconds DEADLINE{20};

// How long something that must not happen is watched for.
constexpr std::chrono::milliseconds GRACE{25};

// The same for what would happen within a second.
constexpr std::chrono::milliseconds LONG_GRACE{1000};

// A forked process that runs one function and ends with its result as exit code. Killed when the
// object goes and, whatever happens to this process, never outlives it.
class Child {
public:
    explicit Child(const std::function<int()>& body);
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child();

    // The exit code; nothing when the process was killed or is still running at the deadline.
    std::optional<int> exitCode();

    // Kills the process, if it still runs, and waits for its end.
    void kill();

    // Stops the process where it is, until it is killed or goes on.
    void stop();
    void goOn() const;

    // Whether the process comes to have at least this many threads, all of them asleep: not running and not
    // ready to run.
    bool fallsAsleep(int threads = 1) const;

    pid_t pid() const { return m_pid; }

private:
    bool endsInTime() const;
    void reap();

    pid_t m_pid = -1;
    int m_status = 0;
    bool m_reaped = false;
};

// Waits until `condition` holds, by the deadline; for what gives no event to wait for.
bool comesTrue(const std::function<bool()>& condition);

// Descriptors that the calling process has open.
int openDescriptors();

} // namespace planner::ipctest
