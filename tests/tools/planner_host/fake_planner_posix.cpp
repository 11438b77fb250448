// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fake_planner_system.h"

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <sys/prctl.h>
#include <unistd.h>

namespace planner::toolstest {

namespace {

void endGently(int) {
    constexpr std::string_view text = "ended gently\n";
    std::_Exit(::write(STDOUT_FILENO, text.data(), text.size()) < 0 ? 1 : 0);
}

} // namespace

void endWithStarter() {
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
}

void goBehind() {
    if (std::getenv("FAKE_PLANNER_BEHIND") != nullptr && ::fork() != 0) {
        waitForEver();
    }
}

void waitForEver() {
    std::signal(SIGTERM, endGently);
    std::cout << "waiting" << std::endl;
    for (;;) {
        ::pause();
    }
}

void dieAtOnce() {
    std::raise(SIGKILL);
    std::abort();
}

} // namespace planner::toolstest
