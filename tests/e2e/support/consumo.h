// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

namespace planner::e2e {

/// What a process holds at this moment.
struct Consumo {
    long kilobytes;   // of memory that is its own
    long descriptors; // that are open
    long threads;
};

/// Throws when there is no such process.
Consumo consumoOf(pid_t process);

/// Waits until the process holds no more descriptors than before, and as many threads; returns what it holds
/// then, or at the deadline.
Consumo settledConsumo(pid_t process, const Consumo& before);

} // namespace planner::e2e
