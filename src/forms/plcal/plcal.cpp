// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/plcal.h"

#include "engine/guard.h"

namespace planner {

plcal::plcal(modpl& sessione, ControlliPlcal& controlli, VistaPlcal& vista, MessageBoxes& messaggi,
             FabbricaMotore fabbrica)
    : m_sessione(sessione), m_controlli(controlli), m_vista(vista), m_messaggi(messaggi),
      m_fabbrica(std::move(fabbrica)) {}

void plcal::load() {
    if (!m_loaded) {
        Form_Load();
    }
}

void plcal::show() {
    m_vista.aggiorna();
    m_vista.mostra();
    Form_Activate();
}

void plcal::bringToFront() {
    m_vista.portaDavanti();
}

void plcal::unload() {
    if (!m_loaded) {
        return;
    }
    Form_Unload();
    m_loaded = m_sessione.risposta('F'); // the filters keep the window ready for the next request
    m_vista.nascondi();
}

void plcal::hide() {
    m_vista.nascondi();
}

void plcal::Form_Load() {
    m_loaded = true;
    m_scala = scalaPer(m_vista.schermo(), ProgettoPlcal);
    m_vista.disponi(Ctr_Refresh(controlliPlcal(), m_scala), m_scala);
}

void plcal::Form_Activate() {
    m_vista.LockWindowUpdate(true);
    m_vista.disponiPulsantiPeriodo();
    if (m_controlli.tipoVisibile == TipoPlanner::Giornaliero) {
        m_vista.scorriA(PrimaColonnaGiornaliera);
    }
    m_vista.LockWindowUpdate(false);
}

bool plcal::Form_KeyDown(int tasto) {
    if (tasto != TastoEscape) {
        return false;
    }
    unload();
    return true;
}

void plcal::Form_Unload() {
    if (!m_sessione.risposta('F')) {
        m_sessione.valret = m_controlli.calendario.testoRisposta() + m_sessione.collab + "E";
    }
    m_sessione.FinePlanner = true;
    m_motore.reset();
}

bool plcal::comandoDisponibile(Pulsante pulsante) {
    return pulsante == Pulsante::exit || pulsante == Pulsante::dettno || pulsante == Pulsante::dettsi;
}

void plcal::Toolbar1_ButtonClick(Pulsante pulsante) {
    if (pulsante == Pulsante::exit) {
        unload();
    } else if (pulsante == Pulsante::dettno || pulsante == Pulsante::dettsi) {
        m_controlli.Toolbar1.setDettagliato(pulsante == Pulsante::dettsi);
        refreshGrid();
    }
}

void plcal::refreshGrid() {
    const bool dettagliato = m_controlli.Toolbar1.dettagliato();
    m_sessione.LivelloDettaglio = dettagliato ? 4 : 1;
    runCommand(m_messaggi, [&] {
        if (m_controlli.tipoVisibile == TipoPlanner::Mensile) {
            motore().PulisciGrid1();
            m_controlli.Flxm.setRows(righeMensile(m_sessione.archivi.NumCollab));
            motore().PopolaGrid1();
        } else if (m_controlli.tipoVisibile == TipoPlanner::Giornaliero) {
            motore().PulisciGrid2();
            m_controlli.flxg.setRows(righeGiornaliera(m_sessione.archivi.NumCollab));
            motore().PopolaGrid2();
        }
    });
    m_vista.aggiorna();
}

clsplg& plcal::motore() {
    if (!m_motore) {
        m_motore = m_fabbrica();
    }
    return *m_motore;
}

} // namespace planner
