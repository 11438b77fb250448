// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/clsplg.h"

#include "archive/cp1252.h"
#include "archive/fixed_text.h"
#include "engine/request_dates.h"
#include "ports/guard.h"

#include <algorithm>

namespace planner {

namespace {

std::string upperCase(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](unsigned char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : static_cast<char>(c);
    });
    return upper;
}

/// A record that the host has not filled holds NUL bytes where others hold blanks.
std::string blanksForNuls(std::string text) {
    std::replace(text.begin(), text.end(), '\0', ' ');
    return text;
}

std::string withoutTrailingSeparator(std::string_view folder) {
    std::string_view path = trimRight(folder);
    if (!path.empty() && path.back() == '\\') {
        path.remove_suffix(1);
    }
    return std::string(path);
}

} // namespace

void clsplg::WPlanner(std::string& tipoplanner, const std::string& startdate, const std::string& enddate,
                      const std::string& PathArchivi, const std::string& tipocall, std::string& collab,
                      std::string& valret, std::string& Windowcaption, std::string& planrichiesto) {
    openSession(blanksForNuls(Windowcaption), PathArchivi);
    m_sessione.tipocall = blanksForNuls(tipocall);
    m_sessione.planrichiesto = blanksForNuls(planrichiesto);
    setUp(blanksForNuls(tipoplanner),
          {blanksForNuls(std::string(slice(valret, 0, 8))), blanksForNuls(startdate), blanksForNuls(enddate)},
          blanksForNuls(collab));
    m_controlli.Toolbar1.setEnabled(Pulsante::agenda, tipocall != "A");
    m_controlli.Toolbar1.setEnabled(Pulsante::grafici, planrichiesto != "S");
    m_finestra.show();
    m_finestra.bringToFront();
    while (!m_sessione.FinePlanner) {
        m_eventi.waitAndProcess();
    }
    collab = m_sessione.collab;
    valret = m_sessione.valret;
    if (m_sessione.risposta('E') || m_sessione.risposta('F')) {
        m_finestra.hide();
    } else {
        m_finestra.unload();
    }
}

void clsplg::chiusura(std::string& collab, std::string& valret) const {
    collab = m_sessione.collab;
    valret = m_controlli.calendario.risposta(collab, "E");
}

void clsplg::openSession(const std::string& Windowcaption, const std::string& PathArchivi) {
    modpl& s = m_sessione;
    s.ModoFinestra = slice(Windowcaption, 0, 1);
    s.TitoloFinestra = slice(Windowcaption, 1, 20);
    s.FlagFinestra = upperCase(lastChars(Windowcaption, 1));
    s.FinePlanner = false;
    s.PathArchivi = withoutTrailingSeparator(PathArchivi);
    s.valret.clear();
    s.collab = "  ";
    s.IndiceCollab = {};
}

void clsplg::WUscita() {
    m_finestra.unload();
}

void clsplg::Init_planner(const std::string& chiave, const std::string& startdate, const std::string& enddate,
                          const std::string& collab) {
    setUp(slice(chiave, 0, 1), {slice(chiave, 1, 8), startdate, enddate}, collab);
}

void clsplg::setUp(std::string_view tipoplanner, const DateInArrivo& date, const std::string& collab) {
    m_finestra.load();
    m_controlli.tipoVisibile = tipoPlanner(slice(tipoplanner, 0, 1));
    const DateRichiesta dates = readRequestDates(m_controlli.tipoVisibile, date, m_orologio.today());
    m_controlli.calendario.setValue(dates.mostrata);
    m_sessione.periodo = dates.periodo;
    if (!dates.guaio.empty()) {
        m_messaggi.critical(dates.guaio); // with the day set: the program may be ended in the message
    }
    setToolbarForKind();
    LeggiCollab();
    m_sessione.IndiceRichiesto =
        trim(collab).empty() ? IndiceCollaboratore{} : m_sessione.indiceCodici.trova(collab);
    runCommand(m_messaggi, [&] { fillForKind(tipoplanner, collab); });
}

void clsplg::fillForKind(std::string_view tipoplanner, const std::string& collab) {
    if (!m_controlli.tipoVisibile) {
        m_messaggi.critical("Richiesta non valida: il tipo di planner \"" + utf8FromCp1252(tipoplanner) +
                            "\" non è M, G o A.");
        m_controlli.Caption = ControlliPlcal::CaptionIniziale;
        m_controlli.lbldescr.clear();
        return;
    }
    prepara(collab);
    m_sessione.CalendarioAttivo = true;
}

void clsplg::setToolbarForKind() {
    const RegoleTipo* tipo = regoleVisibili(m_controlli);
    const bool dettagliato = tipo == nullptr || tipo->dettagliato(m_sessione.ModoFinestra);
    StatoToolbar& toolbar = m_controlli.Toolbar1;
    toolbar.reset(dettagliato);
    m_sessione.LivelloDettaglio = dettagliato ? 4 : 1;
    if (tipo == nullptr || !tipo->perCollaboratore) {
        for (const Pulsante pulsante : {Pulsante::dettno, Pulsante::dettsi, Pulsante::coll}) {
            toolbar.setEnabled(pulsante, false);
        }
    }
}

} // namespace planner
