// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/event_conversation.h"

namespace planner {

namespace {

constexpr std::chrono::milliseconds Pausa{100}; // between two tries of a call
constexpr int Tentativi = 20;                   // after the first one: two seconds in all

} // namespace

EventConversation::EventConversation(mtavtrmpl& collegamento, HostIpc& ipc, EventPump& eventi)
    : m_collegamento(collegamento), m_ipc(ipc), m_eventi(eventi), m_evento(collegamento.nomeEvento()) {}

bool EventConversation::eventLoop() {
    do {
        const bool answered = answerRequest();
        m_finita = answered && m_collegamento.finished();
        if (!answered || m_finita) {
            return endConversation() && answered;
        }
    } while (signalAnswer() && waitForRequest());
    m_collegamento.releaseEngine();
    call(&HostIpc::TvIpcRimozioneEvento);
    return false;
}

bool EventConversation::answerRequest() {
    if (!m_collegamento.tryToRead()) {
        m_collegamento.reportTransitFile();
        return false;
    }
    const bool answered = m_collegamento.dispatch();
    m_eventi.flush(); // the window is off the screen before the host acts
    return answered;
}

bool EventConversation::signalAnswer() {
    if (m_PrimoCiclo && !tried(&HostIpc::TvIpcCreazioneEvento)) {
        return false;
    }
    m_PrimoCiclo = false;
    return tried(&HostIpc::TvIpcSetEvento);
}

bool EventConversation::waitForRequest() {
    m_attende = true;
    const bool done = tried(&HostIpc::TvIpcWaitEvento);
    m_attende = false;
    m_altraRichiesta = m_altraRichiesta || done;
    return done;
}

bool EventConversation::endConversation() {
    m_collegamento.releaseEngine();
    const bool told = signalAnswer();
    call(&HostIpc::TvIpcRimozioneEvento);
    return told;
}

bool EventConversation::tried(Operazione operazione) {
    EsitoEvento esito = call(operazione);
    for (int tries = 0; esito && tries < Tentativi; ++tries) {
        m_eventi.processFor(Pausa);
        esito = call(operazione);
    }
    if (esito) {
        m_collegamento.reportEvent(*esito);
    }
    return !esito;
}

bool EventConversation::congedo() {
    if (m_attende) {
        if (!m_ipc.interrompiAttesa(m_evento)) {
            return true; // nobody had asked
        }
        m_PrimoCiclo = true;
    }
    const bool answered = m_finita || m_collegamento.answerWithClose();
    const bool created = !m_PrimoCiclo || !call(&HostIpc::TvIpcCreazioneEvento);
    const bool told = created && !call(&HostIpc::TvIpcSetEvento);
    call(&HostIpc::TvIpcRimozioneEvento);
    return answered && told;
}

bool EventConversation::haAvutoRisposta() const {
    return m_altraRichiesta || (!m_PrimoCiclo && m_ipc.rispostaPresa());
}

} // namespace planner
