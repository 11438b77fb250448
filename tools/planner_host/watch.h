// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/system/waiting.h"

namespace planner {

/// Turns what would end the host into something to wait for, so that it can end the planner and remove its
/// temporary folder first. To be made before any thread.
class Interruzioni {
public:
    Waitable waitable() const { return m_wishes.waitable(); }
    /// Throws HostError with exit code 128 + signal when a signal has come.
    void check() const;

private:
    EndWishes m_wishes;
};

enum class Sveglia { Pronto, PlannerFinito, TempoScaduto };

/// Sleeps until `atteso` is ready, `fine` (a planner's end) is, or the time is over (no limit when there is
/// none); the first of these that holds, in this order. Throws HostError when the host is interrupted.
Sveglia attendi(Waitable atteso, Waitable fine, const Interruzioni& interruzioni,
                std::optional<std::chrono::milliseconds> limit = std::nullopt);

} // namespace planner
