// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/event_conversation.h"

#include "TavTermIPC.h"
#include "planner_host/errors.h"
#include "planner_host/transit_file.h"

#include <atomic>
#include <sys/eventfd.h>
#include <thread>

namespace planner {

namespace {

/// A planner may end right after its signal, and its event go a little before its process does: the other of
/// the two is noticed within this time at the very most.
constexpr std::chrono::seconds TempoUltimaRisposta{2};

/// One wait for the planner's signal. The thread may outlive everything else here when the planner has died:
/// nobody can end its wait, it goes with the process.
class AttesaEvento {
public:
    explicit AttesaEvento(const std::string& evento) : m_state(std::make_shared<State>()) {
        std::thread([state = m_state, evento] {
            state->failed = TvIpcWaitEvento(evento.c_str()) == 0;
            ::eventfd_write(state->handle.get(), 1);
        }).detach();
    }

    int descriptor() const { return m_state->handle.get(); }
    bool failed() const { return m_state->failed; }

private:
    struct State {
        FileDescriptor handle{::eventfd(0, EFD_CLOEXEC)};
        std::atomic<bool> failed{false};
    };
    std::shared_ptr<State> m_state;
};

[[noreturn]] void failEvent(const std::string& what, const std::string& evento) {
    throw HostError(CodiceUscita::ErroreFile, what + " l'evento \"" + evento + "\"");
}

} // namespace

TransitRequest EventConversation::chiedi(const TransitRequest& richiesta) {
    scriviTransito(dati().transito, richiesta);
    if (started()) {
        announce();
    } else {
        start();
    }
    waitForAnswer();
    return leggiTransito(dati().transito);
}

void EventConversation::announce() {
    if (TvIpcSetEvento(dati().evento.c_str()) != 0) {
        return;
    }
    if (planner().waitForEnd(TempoUltimaRisposta)) {
        failWithoutAnswer();
    }
    failEvent("impossibile segnalare", dati().evento);
}

void EventConversation::waitForAnswer() {
    const AttesaEvento attesa(dati().evento);
    Sveglia sveglia = attendi(attesa.descriptor(), planner().endDescriptor(), interruzioni());
    if (sveglia == Sveglia::PlannerFinito) {
        sveglia = attendi(attesa.descriptor(), NessunDescrittore, interruzioni(), TempoUltimaRisposta);
    }
    if (sveglia != Sveglia::Pronto) {
        failWithoutAnswer();
    }
    if (attesa.failed()) {
        failEvent("impossibile aspettare", dati().evento);
    }
}

void EventConversation::congeda() {
    planner().terminate();
    // The planner could not remove its event; making it anew and removing it leaves nothing behind.
    TvIpcCreazioneEvento(dati().evento.c_str());
    TvIpcRimozioneEvento(dati().evento.c_str());
}

} // namespace planner
