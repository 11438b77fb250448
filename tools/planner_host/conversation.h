// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/transit_request.h"
#include "planner_host/planner_process.h"
#include "planner_host/watch.h"
#include "platform/system/paths.h"

#include <filesystem>
#include <memory>
#include <string>

namespace planner {

/// What both ways of talking to a planner need to know.
struct DatiColloquio {
    std::filesystem::path planner;
    std::filesystem::path transito;
    char flag;
    std::string evento; // "NOEVENT" in polling mode
};

/// The arguments that the planner is started with.
inline std::vector<std::string> argomentiPlanner(const DatiColloquio& dati) {
    return {textOf(dati.transito), std::string(1, dati.flag), dati.evento};
}

/// One planner, from its start to its end.
class Conversation {
public:
    virtual ~Conversation() = default;

    /// Hands the request over, starting the planner at the first one, and sleeps until it has answered.
    /// Throws HostError: exit code 2 when the planner ends without answering, 3 for files and events.
    virtual TransitRequest chiedi(const TransitRequest& richiesta) = 0;

    /// Ends a planner that waits for a next request which will not come.
    virtual void congeda() = 0;

    /// Sleeps until the planner, which has answered "E", has ended. Throws HostError with exit code 2 when it
    /// does not, or not well.
    void chiudi();

protected:
    Conversation(DatiColloquio dati, const Interruzioni& interruzioni)
        : m_dati(std::move(dati)), m_interruzioni(interruzioni) {}

    const DatiColloquio& dati() const { return m_dati; }
    const Interruzioni& interruzioni() const { return m_interruzioni; }
    bool started() const { return m_planner != nullptr; }
    PlannerProcess& planner() { return *m_planner; }
    void start() { m_planner = std::make_unique<PlannerProcess>(m_dati.planner, argomentiPlanner(m_dati)); }
    [[noreturn]] void failWithoutAnswer();

private:
    DatiColloquio m_dati;
    const Interruzioni& m_interruzioni;
    std::unique_ptr<PlannerProcess> m_planner;
};

} // namespace planner
