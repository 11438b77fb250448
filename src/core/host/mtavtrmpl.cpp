// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/mtavtrmpl.h"

#include "archive/cp1252.h"
#include "ports/runtime_errors.h"

#include <bit>
#include <span>

namespace planner {

namespace {

using RecordBytes = std::array<char, sizeof(TransitRequest)>;

constexpr std::string_view NoDayClosed = "00000000  E"; // the answer of no window at all

} // namespace

mtavtrmpl::mtavtrmpl(const RigaComando& riga, const Porte& porte, FabbricaMotore fabbrica)
    : m_riga(riga), m_porte(porte), m_fabbrica(std::move(fabbrica)),
      m_CartellaTransito(folderOf(riga.PathTransito)) {}

void mtavtrmpl::readRequest() {
    RecordBytes bytes;
    bytes.fill(' ');
    m_porte.files.readStart(m_riga.PathTransito, bytes);
    m_richiesta = std::bit_cast<TransitRequest>(bytes);
}

bool mtavtrmpl::tryToRead() {
    try {
        readRequest();
        return true;
    } catch (const FileError&) {
        return false;
    }
}

bool mtavtrmpl::dispatch() {
    m_serving = true;
    try {
        serve();
    } catch (const std::exception& error) {
        m_porte.messaggi.critical(
            "Il planner si chiude per un errore imprevisto: " + std::string(error.what()) + ".");
        putAnswer("", NoDayClosed);
    }
    bool written = writeAnswer();
    while (!written && m_porte.messaggi.askToRetry(transitTrouble())) {
        written = writeAnswer();
    }
    m_serving = false;
    return written;
}

bool mtavtrmpl::answerWithClose() {
    std::string collab;
    std::string valret(NoDayClosed);
    if (m_serving && m_oPlanner) {
        m_oPlanner->chiusura(collab, valret);
    } else if (!m_serving && !tryToRead()) {
        return false;
    }
    putAnswer(collab, valret);
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

void mtavtrmpl::putAnswer(std::string_view collab, std::string_view valret) {
    m_richiesta.collab.assign(collab);
    m_richiesta.valret.assign(valret);
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

Message mtavtrmpl::transitTrouble() const {
    return {MessageIcon::Critical, std::string(TitoloMessaggi),
            "Attenzione ! Problemi con il file di transito " + m_riga.PathTransito};
}

void mtavtrmpl::reportTransitFile() {
    m_porte.messaggi.show(transitTrouble());
}

void mtavtrmpl::reportMarker(const std::string& marker) {
    m_porte.messaggi.critical("Attenzione ! La risposta è pronta, ma il file " + marker +
                              " non può essere eliminato e il programma dello studio resta in attesa. "
                              "Controllare i permessi della cartella, oppure eliminare il file a mano.");
}

void mtavtrmpl::reportEvent(const GuaioEvento& guaio) {
    const std::string evento = "l'evento \"" + utf8FromCp1252(nomeEvento()) + "\"";
    m_porte.messaggi.critical(guaio.giaUsato
                                  ? "Un altro planner usa già " + evento + ". Questo planner si chiude."
                                  : "Attenzione ! Problemi con " + evento + ": " + guaio.causa +
                                        ". Il planner si chiude.");
}

} // namespace planner
