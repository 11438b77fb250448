// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/host.h"

#include "planner_host/byte_dump.h"
#include "planner_host/errors.h"
#include "planner_host/event_conversation.h"
#include "planner_host/polling_conversation.h"
#include "planner_host/request.h"
#include "planner_host/transit_file.h"
#include "platform/system/paths.h"
#include "platform/system/this_process.h"

#include <ostream>

namespace planner {

namespace {

std::filesystem::path plannerBesideThisProgram() {
    return programFolder() / "planner";
}

std::string commandLine(const DatiColloquio& dati) {
    std::string text = textOf(dati.planner);
    for (const std::string& argomento : argomentiPlanner(dati)) {
        text += argomento.find(' ') == std::string::npos ? " " + argomento : " \"" + argomento + "\"";
    }
    return text;
}

} // namespace

Host::Host(const OpzioniHost& opzioni, const Interruzioni& interruzioni, std::ostream& out)
    : m_opzioni(opzioni), m_interruzioni(interruzioni), m_out(out), m_archivio(opzioni) {}

void Host::esegui() {
    prepareArchive(m_opzioni.opzioniCampione.anno);
    if (m_opzioni.soloArchivio) {
        return;
    }
    if (!m_opzioni.giro) {
        converse(m_opzioni.tipo);
        return;
    }
    for (const char tipo : {'M', 'G', 'A'}) {
        m_archivio.prepara(m_opzioni.opzioniCampione.anno);
        converse(tipo);
    }
}

void Host::prepareArchive(int anno) {
    m_archivio.prepara(anno);
    tell("cartella", textOf(m_archivio.cartella()));
    tell("archivio", m_archivio.descrizione());
}

DatiColloquio Host::makeDati() {
    ++m_avviati;
    const bool polling = m_opzioni.modo == Modo::Polling;
    const std::string unique =
        "planner-host-" + std::to_string(processNumber()) + "-" + std::to_string(m_avviati);
    const std::string evento = m_opzioni.evento.empty() ? unique : m_opzioni.evento;
    return {m_opzioni.planner.empty() ? plannerBesideThisProgram() : m_opzioni.planner,
            m_archivio.cartella() / pathOf(m_opzioni.transito), m_opzioni.flag, polling ? "NOEVENT" : evento};
}

std::unique_ptr<Conversation> Host::makeConversation(DatiColloquio dati) {
    if (m_opzioni.modo == Modo::Polling) {
        return std::make_unique<PollingConversation>(std::move(dati), m_interruzioni);
    }
    return std::make_unique<EventConversation>(std::move(dati), m_interruzioni);
}

void Host::converse(char tipo) {
    const DatiColloquio dati = makeDati();
    tell("avvio", commandLine(dati));
    if (m_opzioni.modo == Modo::Polling && m_opzioni.flag == '0') {
        tryFlagZero(dati, tipo);
        return;
    }
    const auto colloquio = makeConversation(dati);
    std::optional<TransitRequest> richiesta = creaRichiesta(m_opzioni, tipo);
    for (int count = 1; richiesta; ++count) {
        const Seguito seguito = daiSeguito(*richiesta, ask(*colloquio, *richiesta));
        if (seguito.richiesta && count == m_opzioni.risposte) {
            colloquio->congeda();
            tell("fine", "limite di risposte raggiunto, planner congedato");
            return;
        }
        carryOut(seguito, *colloquio);
        richiesta = seguito.richiesta;
    }
}

Risposta Host::ask(Conversation& colloquio, const TransitRequest& richiesta) {
    tell("richiesta", descriviRichiesta(richiesta));
    tellBytes(richiesta);
    const TransitRequest record = colloquio.chiedi(richiesta);
    const auto cercaNome = [this](std::string_view codice) { return m_archivio.cercaNome(codice); };
    tell("risposta", descriviRisposta(record.valret.view(), cercaNome));
    tellBytes(record);
    warnAboutReservedFields(richiesta, record);
    const auto risposta = leggiRisposta(record.valret.view());
    if (!risposta) {
        throw HostError(CodiceUscita::PlannerFallito, "il planner ha dato una risposta non valida");
    }
    return *risposta;
}

void Host::carryOut(const Seguito& seguito, Conversation& colloquio) {
    tell("seguito", seguito.testo);
    if (!seguito.richiesta) {
        colloquio.chiudi();
    }
    if (seguito.annoArchivio) {
        m_archivio.prepara(*seguito.annoArchivio);
        tell("archivio", m_archivio.descrizione());
    }
}

void Host::tryFlagZero(const DatiColloquio& dati, char tipo) {
    scriviTransito(dati.transito, creaRichiesta(m_opzioni, tipo));
    provaFlagZero(dati, m_interruzioni);
    tell("fine", "il planner ha tolto TvPlaOK.lck ed è finito senza rispondere");
}

void Host::warnAboutReservedFields(const TransitRequest& richiesta, const TransitRequest& record) {
    if (record.riservato1 != richiesta.riservato1 || record.riservato2 != richiesta.riservato2) {
        tell("attenzione", "il planner ha cambiato i campi riservati dell'host");
    }
}

void Host::tell(std::string_view what, const std::string& text) {
    m_out << what << ": " << text << std::endl; // at once: who reads along wants to see where it stands
}

void Host::tellBytes(const TransitRequest& record) {
    if (m_opzioni.mostraByte) {
        m_out << mostraByte(record) << std::flush;
    }
}

} // namespace planner
