// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/period_moves.h"
#include "forms/plcal/plcal_guard.h"

namespace planner {

void plcal::bselm_Click(int indice) {
    esegui([&] {
        const Data shown = m_controlli.calendario.Value();
        const int step = indice % 2 == 0 ? -1 : 1;
        const auto target = indice == 0 || indice == 1   ? moveMonth(shown, step, m_sessione.periodo)
                            : indice == 2 || indice == 3 ? moveYear(shown, step, m_sessione.periodo)
                                                         : std::nullopt;
        if (indice == 1 && target && yearOf(*target) > yearOf(shown)) {
            m_sessione.valret.clear(); // a reply composed before is withdrawn
            m_sessione.FinePlanner = false;
        }
        showMonth(target.value_or(shown));
    });
}

void plcal::showMonth(Data giorno) {
    const Griglia::LockWindowUpdate lock(m_controlli.Flxm);
    m_pannello.nascondiTotali();
    m_controlli.calendario.setValue(giorno);
    m_sessione.DataSessione = giorno;
    motore().PulisciGrid1();
    motore().Dayofweek();
    motore().LeggiDati();
    motore().showgrid();
    motore().PopolaGrid1();
    motore().Let_planner();
    posizionaCursore(PrimaColonnaGiornaliera);
    restoreMarks();
    describeCurrentCell();
}

void plcal::bselg_Click(int indice) {
    const int step = indice == 1 ? -1 : indice == 2 ? 1 : 0;
    esegui([&] {
        const Data shown = m_controlli.calendario.Value();
        showDay(step == 0 ? shown : moveDay(shown, step, m_sessione.periodo).value_or(shown));
    });
}

void plcal::showDay(Data giorno) {
    const Griglia::LockWindowUpdate lock(m_controlli.flxg);
    m_pannello.nascondiTotali();
    m_controlli.calendario.setValue(giorno);
    m_sessione.DataSessione = giorno;
    motore().PulisciGrid2();
    motore().Dayofweek();
    motore().PopolaGrid2();
    posizionaCursore(m_porte.vista.primaColonnaInVista());
    restoreMarks();
    describeCurrentCell();
}

void plcal::bselA_Click(int indice) {
    if (indice == 1 || indice == 2) {
        reply(indice == 1 ? "P" : "S");
    }
}

void plcal::pulsantePeriodo_Click(const PulsantePeriodo& pulsante) {
    switch (pulsante.tipo) {
    case TipoPlanner::Mensile:
        bselm_Click(pulsante.indice);
        break;
    case TipoPlanner::Giornaliero:
        bselg_Click(pulsante.indice);
        break;
    case TipoPlanner::Annuale:
        bselA_Click(pulsante.indice);
        break;
    }
}

bool plcal::pulsantePeriodoAttivo(const PulsantePeriodo& pulsante) const {
    const Data shown = m_controlli.calendario.Value();
    const int step = pulsante.successivo ? 1 : -1;
    switch (pulsante.tipo) {
    case TipoPlanner::Mensile:
        return pulsante.riga == 0 ? moveMonth(shown, step, m_sessione.periodo).has_value()
                                  : moveYear(shown, step, m_sessione.periodo).has_value();
    case TipoPlanner::Giornaliero:
        return moveDay(shown, step, m_sessione.periodo).has_value();
    case TipoPlanner::Annuale:
        return true;
    }
    return false;
}

bool plcal::puoMostrare(Data giorno) const {
    switch (*m_controlli.tipoVisibile) {
    case TipoPlanner::Mensile:
        return monthInPeriod(giorno, m_sessione.periodo);
    case TipoPlanner::Giornaliero:
        return dayInPeriod(giorno, m_sessione.periodo);
    case TipoPlanner::Annuale:
        return giorno.year() == m_controlli.calendario.Value().year();
    }
    return false;
}

void plcal::calendario_DateClick(Data giorno) {
    esegui([&] {
        if (!m_controlli.tipoVisibile || !puoMostrare(giorno)) {
            return;
        }
        const Data shown = m_controlli.calendario.Value();
        const bool sameMonth = giorno.year() == shown.year() && giorno.month() == shown.month();
        if (m_controlli.tipoVisibile == TipoPlanner::Mensile && !sameMonth) {
            showMonth(giorno);
        } else if (m_controlli.tipoVisibile == TipoPlanner::Giornaliero && giorno != shown) {
            showDay(giorno);
        } else {
            showPickedDay(giorno);
        }
    });
}

/// The grid shows the day already: only calendar, cursor and what hangs on them move.
void plcal::showPickedDay(Data giorno) {
    const Griglia::LockWindowUpdate lock(*m_controlli.grigliaVisibile());
    m_controlli.calendario.setValue(giorno);
    posizionaCursore(m_porte.vista.primaColonnaInVista());
    if (m_controlli.tipoVisibile == TipoPlanner::Annuale) {
        SelChange(Scelta::totaliGiorno);
    } else {
        markShownCell();
    }
    describeCurrentCell();
}

} // namespace planner
