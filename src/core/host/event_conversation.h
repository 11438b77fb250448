// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/mtavtrmpl.h"
#include "ports/event_pump.h"
#include "ports/host_ipc.h"

#include <functional>
#include <string>

namespace planner {

/// Event mode: one request after the other, with the named event between them.
class EventConversation {
public:
    EventConversation(mtavtrmpl& collegamento, HostIpc& ipc, EventPump& eventi);

    /// Serves requests until an answer ends with "E", and waits for the host between them. True at such an
    /// end; false when the transit file cannot be read, the user gives up an answer that cannot be written,
    /// or the event cannot be used, each of which has been said.
    bool eventLoop();

    /// The end from outside, in whatever state: answers a request under way with "E", tells the host and
    /// removes the event. Says nothing; false when the host could not be told.
    bool congedo();

    /// True while nobody has asked anything since the last answer.
    bool attende() const { return m_attende; }
    /// True when the host is known to have taken an answer.
    bool haAvutoRisposta() const;

private:
    using Operazione = EsitoEvento (HostIpc::*)(const std::string& nome);

    bool answerRequest();
    bool signalAnswer();
    bool waitForRequest();
    bool endConversation();
    bool tried(Operazione operazione);
    EsitoEvento call(Operazione operazione) { return (m_ipc.*operazione)(m_evento); }

    mtavtrmpl& m_collegamento;
    HostIpc& m_ipc;
    EventPump& m_eventi;
    std::string m_evento;
    bool m_PrimoCiclo = true; // the event has not been created yet
    bool m_attende = false;
    bool m_finita = false;         // the answer that ends the conversation is in the file
    bool m_altraRichiesta = false; // the host has asked again: it has had the answer before
};

} // namespace planner
