// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/notices.h"
#include "forms/plcal/plcal.h"
#include "forms/plcal/yearly_day.h"
#include "forms/plfgraf/plfgraf.h"
#include "forms/plfgraf/visualizza_grafico.h"
#include "forms/plfimp/plfimp.h"

#include <algorithm>

namespace planner {

namespace {

constexpr unsigned ScadenzeOPratiche = insieme(TipoImpegno::scadenze) | insieme(TipoImpegno::pratiche);

/// True when some cell of the staff member's row has one of the kinds.
bool rowShows(const Griglia& griglia, IndiceCollaboratore indice, unsigned tipi) {
    const int row = rigaCollaboratore(griglia, indice);
    for (int column = 0; row < griglia.Rows() && column < griglia.Cols(); ++column) {
        if ((griglia.cella(row, column).tipi & tipi) != 0) {
            return true;
        }
    }
    return false;
}

} // namespace

void plcal::Toolbar1_ButtonClick(std::string_view chiave) {
    if (chiave == "exit") {
        unload();
    } else if (chiave == "coll") {
        showStaffList();
    } else if (chiave == "filtri") {
        m_sessione.valret = m_controlli.calendario.risposta(m_sessione.collab, "F");
        unload();
    } else if (chiave == "agenda") {
        if (m_sessione.tipocall != "A") {
            reply("A");
        }
    } else if (chiave == "consult") {
        esegui([&] { consult(); });
    } else if (chiave == "insimp") {
        insimp();
    } else if (chiave == "dettno" || chiave == "dettsi") {
        setDettagliato(chiave == "dettsi");
    } else if (chiave == "grafici") {
        esegui([&] { showChart(); });
    } else if (chiave == "info") {
        m_porte.vista.mostraInformazioni();
    }
}

void plcal::reply(std::string_view azione) {
    m_sessione.valret = m_controlli.calendario.risposta(m_sessione.collab, azione);
    m_sessione.FinePlanner = true;
}

void plcal::consult() {
    if (canConsult()) {
        reply("D");
    } else {
        annunciaStato("Qui non ci sono scadenze o pratiche da consultare.");
    }
}

bool plcal::canConsult() const {
    if (!m_controlli.tipoVisibile) {
        return false;
    }
    if (!tipo().perCollaboratore) {
        return giornoSegnato(m_sessione.archivi, griglia().corrente());
    }
    const IndiceCollaboratore indice =
        tipo().unGiorno ? indiceDiRiga(griglia(), griglia().Row()) : m_sessione.IndiceCollab;
    const TabellaTotali& totals = m_sessione.TotaliImpegni;
    if (!indice.presente()) {
        return false;
    }
    return totals.contiene(indice)
               ? totals.at(indice, Totale::scadenze) >= 1 || totals.at(indice, Totale::pratiche) >= 1
               : rowShows(griglia(), indice, ScadenzeOPratiche);
}

void plcal::insimp() {
    if (m_sessione.varianteRidotta()) {
        reply("T");
        return;
    }
    plfimp form;
    m_porte.finestraImpegno(form);
    if (!form.risposta().empty()) {
        reply(form.risposta());
    }
}

void plcal::showStaffList() {
    m_contenuti.PopolaListaCollab(m_porte.collaboratori.List_Prenotazione());
    m_porte.collaboratori.show();
}

void plcal::showChart() {
    m_contenuti.LeggiDatiPerGrafici();
    plfgraf form(m_sessione.archivi, m_controlli.calendario, avvisoGrafici(m_sessione));
    if (visualizzaGrafico(form, m_controlli.tipoVisibile, m_sessione.IndiceCollab, m_porte.messaggi)) {
        m_porte.finestraGrafici(form);
    }
}

void plcal::setDettagliato(bool dettagliato) {
    m_controlli.Toolbar1.setDettagliato(dettagliato);
    m_porte.vista.annunciaConCasella(dettagliato ? "planner dettagliato" : "planner non dettagliato");
    refreshGrid();
}

void plcal::refreshGrid() {
    m_sessione.LivelloDettaglio = m_controlli.Toolbar1.dettagliato() ? 4 : 1;
    if (!m_controlli.tipoVisibile || !tipo().perCollaboratore) {
        return;
    }
    esegui([&] {
        const Griglia::LockWindowUpdate lock(griglia());
        const auto [row, column] = griglia().corrente();
        m_contenuti.ricompila();
        griglia().setCurrent({std::min(row, griglia().Rows() - 1), column});
        restoreMarks();
    });
}

} // namespace planner
