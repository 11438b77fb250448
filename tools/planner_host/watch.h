// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/file_descriptor.h"

#include <chrono>
#include <optional>

namespace planner {

/// Turns the signals that would end the host into something to wait for, so that it can end the planner and
/// remove its temporary folder first. Blocks them in the calling thread and the threads made afterwards.
class Interruzioni {
public:
    Interruzioni();
    int descriptor() const { return m_handle.get(); }
    /// Throws HostError with exit code 128 + signal when a signal has come.
    void check() const;

private:
    FileDescriptor m_handle;
};

enum class Sveglia { Pronto, PlannerFinito, TempoScaduto };

inline constexpr int NessunDescrittore = -1;

/// Sleeps until `descriptor` is readable, `fine` (a planner's end) is, or the time is over (no limit when
/// there is none); the first of these that holds, in this order. Throws HostError when the host is
/// interrupted.
Sveglia attendi(int descriptor, int fine, const Interruzioni& interruzioni,
                std::optional<std::chrono::milliseconds> limit = std::nullopt);

} // namespace planner
