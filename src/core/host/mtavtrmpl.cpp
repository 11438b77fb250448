// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/mtavtrmpl.h"

#include "ports/runtime_errors.h"

#include <bit>
#include <span>

namespace planner {

namespace {

using RecordBytes = std::array<char, sizeof(TransitRequest)>;

} // namespace

mtavtrmpl::mtavtrmpl(const RigaComando& riga, const Porte& porte, FabbricaMotore fabbrica)
    : m_riga(riga), m_porte(porte), m_fabbrica(std::move(fabbrica)),
      m_CartellaTransito(folderOf(riga.PathTransito)), m_evento(trim(riga.NomeEvento)) {}

bool mtavtrmpl::eventLoop() {
    for (;;) {
        try {
            readRequest();
        } catch (const FileError&) {
            reportTransitFile();
            endConversation();
            return false;
        }
        dispatch();
        m_porte.eventi
            .flush(); // the window is off the screen before the host acts and before the wait blocks
        if (finished()) {
            endConversation();
            return true;
        }
        signalAnswer();
        m_porte.ipc.TvIpcWaitEvento(m_evento);
    }
}

void mtavtrmpl::signalAnswer() {
    if (m_PrimoCiclo) {
        m_porte.ipc.TvIpcCreazioneEvento(m_evento);
        m_PrimoCiclo = false;
    }
    m_porte.ipc.TvIpcSetEvento(m_evento);
}

void mtavtrmpl::endConversation() {
    releaseEngine();
    signalAnswer();
    m_porte.ipc.TvIpcRimozioneEvento(m_evento);
}

void mtavtrmpl::readRequest() {
    RecordBytes bytes;
    bytes.fill(' ');
    m_porte.files.readStart(m_riga.PathTransito, bytes);
    m_richiesta = std::bit_cast<TransitRequest>(bytes);
}

bool mtavtrmpl::dispatch() {
    try {
        serve();
    } catch (const std::exception& error) {
        m_porte.messaggi.critical(
            "Il planner si chiude per un errore imprevisto: " + std::string(error.what()) + ".");
        answerWithClose();
    }
    if (!writeAnswer()) {
        reportTransitFile();
        return false;
    }
    return true;
}

bool mtavtrmpl::repeatAnswer(const TransitRequest& risposta) {
    m_richiesta = risposta;
    return writeAnswer();
}

void mtavtrmpl::serve() {
    if (!m_oPlanner) {
        m_oPlanner = m_fabbrica();
    }
    TransitRequest& r = m_richiesta;
    std::string tipoplanner = r.tipoplanner.text();
    std::string collab = r.collab.text();
    std::string valret = r.valret.text();
    std::string Windowcaption = r.Windowcaption.text();
    std::string planrichiesto = r.planrichiesto.text();
    m_oPlanner->WPlanner(tipoplanner, r.startdate.text(), r.enddate.text(), m_CartellaTransito,
                         r.tipocall.text(), collab, valret, Windowcaption, planrichiesto);
    r.tipoplanner.assign(tipoplanner);
    r.collab.assign(collab);
    r.valret.assign(valret);
    r.Windowcaption.assign(Windowcaption);
    r.planrichiesto.assign(planrichiesto);
}

void mtavtrmpl::answerWithClose() {
    m_richiesta.collab.assign("");
    m_richiesta.valret.assign("00000000  E");
}

bool mtavtrmpl::writeAnswer() {
    const auto bytes = std::bit_cast<RecordBytes>(m_richiesta);
    try {
        m_porte.files.writeStart(m_riga.PathTransito, bytes);
        return true;
    } catch (const FileError&) {
        return false;
    }
}

void mtavtrmpl::reportTransitFile() {
    m_porte.messaggi.critical("Attenzione ! Problemi con il file di transito " + m_riga.PathTransito);
}

void mtavtrmpl::reportMarker(const std::string& marker) {
    m_porte.messaggi.critical("Attenzione ! La risposta è pronta, ma il file " + marker +
                              " non può essere eliminato e il programma dello studio resta in attesa. "
                              "Controllare i permessi della cartella, oppure eliminare il file a mano.");
}

} // namespace planner
