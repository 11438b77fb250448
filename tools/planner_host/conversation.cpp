// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/conversation.h"

#include "planner_host/errors.h"

namespace planner {

namespace {

constexpr std::chrono::seconds TempoDopoChiusura{30};

} // namespace

void Conversation::chiudi() {
    attendi(planner().endWaitable(), NoWaitable, interruzioni(), TempoDopoChiusura);
    if (!planner().waitForEnd(std::chrono::milliseconds{0})) {
        throw HostError(CodiceUscita::PlannerFallito, "il planner ha risposto \"E\" ma non finisce");
    }
    if (!planner().endedWell()) {
        throw HostError(CodiceUscita::PlannerFallito,
                        "il planner ha risposto \"E\" ma è finito male (" + planner().descriviFine() + ")");
    }
}

void Conversation::failWithoutAnswer() {
    planner().waitForEnd(std::chrono::milliseconds{0});
    throw HostError(CodiceUscita::PlannerFallito,
                    "il planner è finito senza rispondere (" + planner().descriviFine() + ")");
}

} // namespace planner
