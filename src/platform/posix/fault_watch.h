// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>

namespace planner {

/// As long as the object lives, a memory fault of the program (SIGSEGV, SIGBUS) comes to `lastWords`, in the
/// thread that has made it, instead of ending the process at once. A second one ends it.
class FaultWatch {
public:
    explicit FaultWatch(void (*lastWords)(int signal));
    ~FaultWatch();
    FaultWatch(const FaultWatch&) = delete;
    FaultWatch& operator=(const FaultWatch&) = delete;

private:
    struct sigaction m_segvBefore {};
    struct sigaction m_busBefore {};
};

/// Ends the process in two seconds at the latest. For last words: what the faulty code held stays held, and
/// may hold them up.
void endSoon();

} // namespace planner
