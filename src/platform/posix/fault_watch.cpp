// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/posix/fault_watch.h"

#include <unistd.h>

namespace planner {

FaultWatch::FaultWatch(void (*lastWords)(int signal)) {
    struct sigaction action {};
    action.sa_handler = lastWords;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    ::sigaction(SIGSEGV, &action, &m_segvBefore);
    ::sigaction(SIGBUS, &action, &m_busBefore);
}

FaultWatch::~FaultWatch() {
    ::sigaction(SIGSEGV, &m_segvBefore, nullptr);
    ::sigaction(SIGBUS, &m_busBefore, nullptr);
}

void endSoon() {
    constexpr unsigned seconds = 2;
    ::alarm(seconds);
}

} // namespace planner
