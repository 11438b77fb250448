// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/end_child.h"

#include <sys/wait.h>
#include <unistd.h>

namespace planner::test {

/// Runs `work` in a process of its own, whose signals and limits it may change; its exit code, or 128 + n
/// when signal n ended it.
template <typename Work>
int inChild(Work work) {
    const pid_t child = ::fork();
    if (child == 0) {
        endChild(work());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace planner::test
