// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/watch.h"

#include "planner_host/errors.h"

#include <array>

namespace planner {

void Interruzioni::check() const {
    const int signal = m_wishes.take();
    if (signal != 0) {
        throw HostError(128 + signal, "interrotto dal segnale " + std::to_string(signal));
    }
}

Sveglia attendi(Waitable atteso, Waitable fine, const Interruzioni& interruzioni,
                std::optional<std::chrono::milliseconds> limit) {
    const auto first = waitForFirst(std::array{atteso, fine, interruzioni.waitable()}, limit);
    interruzioni.check();
    if (first == 0U) {
        return Sveglia::Pronto;
    }
    return first == 1U ? Sveglia::PlannerFinito : Sveglia::TempoScaduto;
}

} // namespace planner
