// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <sys/types.h>

namespace planner::test {

/// The kinds of locks that another program may keep on a file.
enum class Lock { flockExclusive, flockShared, recordWrite, recordRead, ofdWrite };

/// Another process that keeps a file locked as long as the object lives.
class LockHolder {
public:
    /// Returns when the lock is held; throws std::runtime_error when it cannot be.
    LockHolder(const std::string& path, Lock lock);
    ~LockHolder();
    LockHolder(const LockHolder&) = delete;
    LockHolder& operator=(const LockHolder&) = delete;

private:
    pid_t m_child = -1;
    int m_release = -1; // closing it lets the child go
};

} // namespace planner::test
