// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/clsplg.h"
#include "grids/today.h"

namespace planner {

void clsplg::Dayofweek() {
    const Calendario& calendario = m.controlli.calendario;
    m.sessione.PrimoGiornoSettimana = primoGiornoSettimana(calendario.Year(), calendario.Month());
}

void clsplg::showgrid() {
    planner::showgrid(m.sessione, m.controlli.calendario, m.controlli.Flxm);
    markTodayMonthly(m.controlli.Flxm, m.controlli.calendario, m.orologio.today());
}

void clsplg::showgrid2() {
    planner::showgrid2(m.controlli.flxg);
}

void clsplg::showgrid3() {
    planner::showgrid3(m.sessione, m.controlli.calendario, m.controlli.flxa);
    markTodayYearly(m.controlli.flxa, m.controlli.calendario, m.orologio.today());
}

void clsplg::PopolaGrid1() {
    announce(planner::PopolaGrid1(m.sessione, m.controlli.calendario, m.controlli.Flxm,
                                  m.controlli.Toolbar1.dettagliato()));
}

void clsplg::PopolaGrid2() {
    Dayofweek();
    markTodayDaily(m.controlli.flxg, m.controlli.calendario, m.orologio.today());
    announce(planner::PopolaGrid2(m.sessione, m.controlli.calendario, m.controlli.flxg,
                                  m.controlli.Toolbar1.dettagliato()));
}

void clsplg::PopolaGrid3() {
    planner::PopolaGrid3(m.sessione, m.controlli.calendario, m.controlli.flxa);
}

void clsplg::PulisciGrid1() {
    planner::PulisciGrid1(m.controlli.Flxm, m.controlli.Toolbar1.dettagliato());
}

void clsplg::PulisciGrid2() {
    planner::PulisciGrid2(m.controlli.flxg, m.controlli.Toolbar1.dettagliato());
}

void clsplg::PulisciGrid3() {
    planner::PulisciGrid3(m.controlli.flxa);
}

void clsplg::announce(const EsitoRiempimento& esito) {
    if (esito.scartate > 0) {
        m.messaggi.critical(esito.messaggio());
    }
}

} // namespace planner
