// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fake_planner_system.h"

#include <cstdlib>
#include <iostream>
#include <windows.h>

namespace planner::toolstest {

void endWithStarter() {}

void goBehind() {}

void waitForEver() {
    std::cout << "waiting" << std::endl;
    for (;;) {
        ::Sleep(INFINITE);
    }
}

void dieAtOnce() {
    ::TerminateProcess(::GetCurrentProcess(), 1);
    std::abort();
}

} // namespace planner::toolstest
