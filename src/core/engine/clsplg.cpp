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
    m.sessione.tipoplanner = blanksForNuls(tipoplanner);
    m.sessione.tipocall = blanksForNuls(tipocall);
    m.sessione.planrichiesto = blanksForNuls(planrichiesto);
    Init_planner(m.sessione.tipoplanner + blanksForNuls(std::string(slice(valret, 0, 8))),
                 blanksForNuls(startdate), blanksForNuls(enddate), blanksForNuls(collab));
    m.controlli.Toolbar1.setEnabled(Pulsante::agenda, tipocall != "A");
    m.controlli.Toolbar1.setEnabled(Pulsante::grafici, planrichiesto != "S");
    m.finestra.show();
    m.finestra.bringToFront();
    while (!m.sessione.FinePlanner) {
        m.eventi.waitAndProcess();
    }
    collab = m.sessione.collab;
    valret = m.sessione.valret;
    if (m.sessione.risposta('E') || m.sessione.risposta('F')) {
        m.finestra.hide();
    } else {
        m.finestra.unload();
    }
}

void clsplg::openSession(const std::string& Windowcaption, const std::string& PathArchivi) {
    modpl& s = m.sessione;
    s.ModoFinestra = slice(Windowcaption, 0, 1);
    s.TitoloFinestra = slice(Windowcaption, 1, 20);
    s.FlagFinestra = upperCase(lastChars(Windowcaption, 1));
    s.FinePlanner = false;
    s.PathArchivi = withoutTrailingSeparator(PathArchivi);
    s.valret.clear();
    s.collab = "  ";
    s.IndiceCollab = -1;
}

void clsplg::WUscita() {
    m.finestra.unload();
}

void clsplg::Init_planner(const std::string& chiave, const std::string& startdate, const std::string& enddate,
                          const std::string& collab) {
    m.finestra.load();
    m.controlli.tipoVisibile = tipoPlanner(slice(chiave, 0, 1));
    const DateRichiesta dates = readRequestDates(
        m.controlli.tipoVisibile, {slice(chiave, 1, 8), startdate, enddate}, m.orologio.today(), m.messaggi);
    m.sessione.DataSessione = dates.mostrata;
    m.sessione.periodo.setInizio(dates.inizio);
    m.sessione.periodo.setFine(dates.fine);
    setToolbarForKind();
    LeggiCollab();
    m.sessione.IndiceRichiesto =
        trim(collab).empty() ? std::int16_t{-1} : m.sessione.indiceCodici.trova(collab);
    runCommand(m.messaggi, [&] { prepareKind(collab); });
}

void clsplg::prepareKind(const std::string& collab) {
    if (!m.controlli.tipoVisibile) {
        m.messaggi.critical("Richiesta non valida: il tipo di planner \"" +
                            utf8FromCp1252(m.sessione.tipoplanner) + "\" non è M, G o A.");
        m.controlli.calendario.setValue(m.sessione.DataSessione);
        m.controlli.Caption = ControlliPlcal::CaptionIniziale;
        m.controlli.lbldescr.clear();
        return;
    }
    switch (*m.controlli.tipoVisibile) {
    case TipoPlanner::Mensile:
        prepareMonthly();
        break;
    case TipoPlanner::Giornaliero:
        prepareDaily();
        break;
    case TipoPlanner::Annuale:
        prepareYearly();
        break;
    }
    Let_planner(collab);
    m.sessione.CalendarioAttivo = true;
}

void clsplg::prepareMonthly() {
    LeggiDati();
    m.controlli.Caption = "Planner Mensile";
    m.controlli.calendario.setValue(m.sessione.DataSessione);
    m.controlli.Flxm.setCols(ColonneGiorni + 1);
    PulisciGrid1();
    Dayofweek();
    showgrid();
    PopolaGrid1();
}

void clsplg::prepareDaily() {
    LeggiDati();
    m.controlli.Caption = "Planner Giornaliero";
    m.controlli.calendario.setValue(m.sessione.DataSessione);
    m.controlli.flxg.setCols(ColonneQuarti + 1);
    PulisciGrid2();
    showgrid2();
    PopolaGrid2();
}

void clsplg::prepareYearly() {
    LeggiDatiAnnuali();
    m.controlli.Caption = "Planner Annuale";
    m.controlli.calendario.setValue(m.sessione.DataSessione);
    m.controlli.flxa.setCols(ColonneGiorni + 1);
    PulisciGrid3();
    showgrid3();
    PopolaGrid3();
}

void clsplg::setToolbarForKind() {
    const auto tipo = m.controlli.tipoVisibile;
    const bool dettagliato = tipo != TipoPlanner::Mensile || m.sessione.ModoFinestra != "N";
    StatoToolbar& toolbar = m.controlli.Toolbar1;
    toolbar.reset(dettagliato);
    m.sessione.LivelloDettaglio = dettagliato ? 4 : 1;
    if (tipo == TipoPlanner::Annuale || !tipo) {
        for (const Pulsante pulsante : {Pulsante::dettno, Pulsante::dettsi, Pulsante::coll}) {
            toolbar.setEnabled(pulsante, false);
        }
    }
}

void clsplg::Let_planner(const std::string& collab) {
    if (!m.controlli.tipoVisibile) {
        return;
    }
    switch (*m.controlli.tipoVisibile) {
    case TipoPlanner::Mensile:
        m.controlli.lbldescr = monthlyTitle();
        break;
    case TipoPlanner::Giornaliero:
        m.controlli.lbldescr = dailyTitle();
        break;
    case TipoPlanner::Annuale:
        m.controlli.lbldescr = yearlyTitle(collab);
        break;
    }
}

std::string clsplg::monthlyTitle() const {
    const Calendario& calendario = m.controlli.calendario;
    return "Mese di " + std::string(nomeMese(calendario.Month())) + " " + std::to_string(calendario.Year());
}

std::string clsplg::dailyTitle() const {
    const auto day = [](Data data) {
        return std::to_string(dayOf(data)) + " " + std::string(nomeMese(monthOf(data))) + " " +
               std::to_string(yearOf(data));
    };
    return "Dal " + day(m.sessione.periodo.inizio()) + " al " + day(m.sessione.periodo.fine());
}

std::string clsplg::yearlyTitle(const std::string& collab) const {
    const std::string year = "Anno " + m.sessione.periodo.AnnoInizio;
    return m.sessione.ModoFinestra == "N" ? year : year + " Impegni di: " + EstraiCollaboratore(collab);
}

} // namespace planner
