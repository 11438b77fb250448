// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"

#include <iostream>
#include <span>
#include <spawn.h>
#include <unistd.h>

/// Starts a program, whose command line follows the name of an event, and prints its process number; waits
/// for the event, prints "told", and lives on.
int main(int argc, char* argv[]) {
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() < 3) {
        return 2;
    }
    pid_t program = -1;
    if (::posix_spawn(&program, arguments[2], nullptr, nullptr, arguments.subspan(2).data(), environ) != 0) {
        return 1;
    }
    std::cout << program << std::endl;
    if (TvIpcWaitEvento(arguments[1]) == 0) {
        return 1;
    }
    std::cout << "told" << std::endl;
    ::pause();
    return 0;
}
