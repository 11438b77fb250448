// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/plcal.h"

#include "forms/plcal/notices.h"

namespace planner {

void plcal::load() {
    if (!m_loaded) {
        Form_Load();
    }
    // A kept window is refilled for its next request: what was marked in its grids is gone.
    for (Griglia* griglia : {&m_controlli.Flxm, &m_controlli.flxg, &m_controlli.flxa}) {
        griglia->evidenzia(Griglia::Nessuna);
    }
    m_pannello.nascondiTotali();
    m_pannello.svuotaAnnuali();
    m_stato.clear();
    m_totaliDetti.clear();
}

void plcal::show() {
    m_stato = m_controlli.tipoVisibile ? StatoIniziale : std::string_view{};
    esegui([this] { posizionaCursore(PrimaColonnaGiornaliera); });
    m_porte.vista.mostra();
    m_porte.vista.scorriAlCursore();
    Form_Activate();
}

void plcal::bringToFront() {
    m_porte.vista.portaDavanti();
}

void plcal::unload() {
    if (!m_loaded) {
        return;
    }
    Form_Unload();
    m_porte.collaboratori.unload();
    m_loaded = m_sessione.risposta('F'); // the filters keep the window ready for the next request
    m_porte.vista.nascondi();
}

void plcal::hide() {
    m_porte.collaboratori.unload();
    m_porte.vista.nascondi();
}

void plcal::Form_Load() {
    m_loaded = true;
    m_scala = scalaPer(m_porte.vista.schermo(), ProgettoPlcal);
    m_porte.vista.disponi(Ctr_Refresh(controlliPlcal(), m_scala), m_scala);
}

void plcal::Form_Activate() {
    m_porte.vista.LockWindowUpdate(true);
    m_porte.vista.disponiPulsantiPeriodo();
    if (m_controlli.tipoVisibile && tipo().unGiorno) {
        m_porte.vista.scorriA(PrimaColonnaGiornaliera);
    }
    m_contenuti.segnaOggi();
    m_porte.vista.LockWindowUpdate(false);
}

void plcal::giornoCambiato() {
    m_contenuti.segnaOggi();
}

std::string plcal::stato() const {
    return avvisoDati(m_controlli, m_sessione) + m_stato;
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
        m_sessione.valret = m_controlli.calendario.risposta(m_sessione.collab, "E");
    }
    m_sessione.FinePlanner = true;
}

} // namespace planner
