// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/event_conversation.h"

#include "TavTermIPC.h"
#include "planner_host/errors.h"
#include "planner_host/transit_file.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <string_view>
#include <system_error>
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
            state->error = TvIpcWaitEvento(evento.c_str()) == 0 ? errno : 0;
            state->ended.wake();
        }).detach();
    }

    Waitable waitable() const { return m_state->ended.waitable(); }
    /// Of the wait that has ended: the error number, 0 for a signal.
    int error() const { return m_state->error; }

private:
    struct State {
        WakeUp ended;
        std::atomic<int> error{0};
    };
    std::shared_ptr<State> m_state;
};

struct Motivo {
    int errore;
    std::string_view testo;
};

constexpr std::array MotiviEvento{
    Motivo{ESRCH, "nessun planner lo ha creato, o non c'è più"},
    Motivo{EOWNERDEAD, "chi lo ha creato è finito senza rispondere"},
    Motivo{EACCES, "la cartella degli eventi non è dell'utente, o è aperta ad altri"},
    Motivo{ENAMETOOLONG, "il nome è troppo lungo"},
    Motivo{EINVAL, "XDG_RUNTIME_DIR non è un percorso completo"},
};

std::string reason(int error) {
    const auto found = std::find_if(MotiviEvento.begin(), MotiviEvento.end(),
                                    [error](const Motivo& motivo) { return motivo.errore == error; });
    return found == MotiviEvento.end() ? std::generic_category().message(error) : std::string(found->testo);
}

[[noreturn]] void failEvent(const std::string& what, const std::string& evento, int error) {
    const CodiceUscita codice = error == EOWNERDEAD ? CodiceUscita::PlannerFallito : CodiceUscita::ErroreFile;
    throw HostError(codice, what + " l'evento \"" + evento + "\": " + reason(error));
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
    if (TvIpcSetEvento(dati().evento.c_str()) == 0) {
        fail("impossibile segnalare", errno);
    }
}

void EventConversation::waitForAnswer() {
    const AttesaEvento attesa(dati().evento);
    Sveglia sveglia = attendi(attesa.waitable(), planner().endWaitable(), interruzioni());
    if (sveglia == Sveglia::PlannerFinito) {
        sveglia = attendi(attesa.waitable(), NoWaitable, interruzioni(), TempoUltimaRisposta);
    }
    if (sveglia != Sveglia::Pronto) {
        failWithoutAnswer();
    }
    if (attesa.error() != 0) {
        fail("impossibile aspettare", attesa.error());
    }
}

void EventConversation::fail(const std::string& what, int error) {
    const bool gone = error == ESRCH || error == EOWNERDEAD;
    if (gone && planner().waitForEnd(TempoUltimaRisposta)) {
        failWithoutAnswer();
    }
    failEvent(what, dati().evento, error);
}

void EventConversation::congeda() {
    planner().terminate();
    // The planner could not remove its event; making it anew and removing it leaves nothing behind.
    TvIpcCreazioneEvento(dati().evento.c_str());
    TvIpcRimozioneEvento(dati().evento.c_str());
}

} // namespace planner
