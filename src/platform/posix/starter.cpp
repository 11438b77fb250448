// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/posix/starter.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace planner {

FileDescriptor watchStarter() {
    const pid_t starter = ::getppid();
    FileDescriptor watched(static_cast<int>(::syscall(SYS_pidfd_open, starter, 0)));
    // Gone in between, its number may be another's by now.
    return ::getppid() == starter ? std::move(watched) : FileDescriptor();
}

} // namespace planner
