// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/contenuti.h"

#include "archive/fixed_text.h"
#include "archive/readers.h"
#include "grids/today.h"
#include "ports/runtime_errors.h"

#include <algorithm>
#include <span>

namespace planner {

namespace {

/// Runs a reader under its error trap: any failure shows `wording` and the path. True when it went well.
template <typename Reader>
bool trap(MessageBoxes& messaggi, std::string_view wording, const std::string& path, Reader reader) {
    try {
        reader();
        return true;
    } catch (const RuntimeError&) {
        messaggi.information(std::string(wording) + path);
        return false;
    }
}

} // namespace

void Contenuti::prepara(const std::string& collab) {
    if (const RegoleTipo* tipo = regoleVisibili(m_controlli)) {
        m_controlli.Caption = tipo->Caption;
        (this->*tipo->pulisci)();
        (this->*tipo->leggi)();
        (this->*tipo->disponi)();
        (this->*tipo->popola)();
        Let_planner(collab);
    }
}

void Contenuti::rinnova() {
    const RegoleTipo* tipo = regoleVisibili(m_controlli);
    tipo != nullptr && tipo->unGiorno ? ricompila() : prepara();
}

void Contenuti::ricompila() {
    if (const RegoleTipo* tipo = regoleVisibili(m_controlli)) {
        (this->*tipo->pulisci)();
        setGridRows();
        (this->*tipo->popola)();
    }
}

void Contenuti::segnaOggi() {
    if (const RegoleTipo* tipo = regoleVisibili(m_controlli)) {
        tipo->segnaOggi(m_controlli.*tipo->griglia, m_controlli.calendario, m_orologio.today());
    }
}

void Contenuti::Let_planner(const std::string& collab) {
    if (const RegoleTipo* tipo = regoleVisibili(m_controlli)) {
        m_controlli.lbldescr = tipo->titolo(m_sessione, m_controlli.calendario, collab);
    }
}

void Contenuti::LeggiDati() {
    const std::string path = m_sessione.percorso(FileRighe);
    m_sessione.letture.righe = trap(m_messaggi, "Errore su File :", path,
                                    [&] { readRighePlanner(m_files, path, m_sessione.archivi); });
    setGridRows(); // the staff's: without the appointments too
}

void Contenuti::setGridRows() {
    m_controlli.Flxm.setRows(righeMensile(m_sessione.archivi.NumCollab));
    m_controlli.flxg.setRows(righeGiornaliera(m_sessione.archivi.NumCollab));
}

void Contenuti::LeggiDatiAnnuali() {
    const std::string path = m_sessione.percorso(FileAnnuale);
    m_sessione.letture.annuale = trap(m_messaggi, "Errore su File :", path, [&] {
        readPlannerAnnuale(m_files, path, m_sessione.archivi);
        m_controlli.calendario.setValue(
            dateFromTexts("01", "01", m_sessione.archivi.PlannerAnnuale.front().anno.view()));
    });
}

void Contenuti::leggiAnnoMostrato() {
    const Data mostrata = m_controlli.calendario.Value();
    LeggiDatiAnnuali();
    m_controlli.calendario.setValue(mostrata);
}

bool Contenuti::LeggiCollab() {
    bool& read = m_sessione.letture.collaboratori;
    read = true;
    try {
        readCollaboratori(m_files, m_sessione.percorso(FileCollaboratori), m_sessione.archivi);
    } catch (const RuntimeError&) {
        read = false;
    }
    m_sessione.indiceCodici = IndiceCodici(m_sessione.archivi.Collaboratori);
    return read;
}

void Contenuti::LeggiDatiPerGrafici() {
    const std::string path = m_sessione.percorso(FileGrafici);
    m_sessione.letture.grafici = trap(m_messaggi, "Errore sul File :", path,
                                      [&] { readRigheGrafici(m_files, path, m_sessione.archivi); });
}

void Contenuti::PopolaListaCollab(ListaCollaboratori& List_Prenotazione) const {
    List_Prenotazione.svuota();
    const std::vector<Collaboratore>& staff = m_sessione.archivi.Collaboratori;
    // The table's last element lies beyond the file's end.
    const auto count = std::min(static_cast<std::size_t>(m_sessione.archivi.NumCollab), staff.size());
    for (const Collaboratore& collaboratore : std::span(staff).first(count)) {
        List_Prenotazione.aggiungi(collaboratore.codice.view(), collaboratore.nome.view(),
                                   collaboratore.mansione.view());
    }
}

std::string Contenuti::EstraiCollaboratore(std::string_view codice) const {
    return planner::EstraiCollaboratore(m_sessione.archivi.Collaboratori, m_sessione.indiceCodici, codice);
}

void Contenuti::showgrid() {
    planner::showgrid(m_sessione, m_controlli.calendario, m_controlli.Flxm);
    markTodayMonthly(m_controlli.Flxm, m_controlli.calendario, m_orologio.today());
}

void Contenuti::showgrid3() {
    planner::showgrid3(m_sessione, m_controlli.calendario, m_controlli.flxa);
    markTodayYearly(m_controlli.flxa, m_controlli.calendario, m_orologio.today());
}

void Contenuti::PopolaGrid1() {
    announce(planner::PopolaGrid1(m_sessione, m_controlli.calendario, m_controlli.Flxm,
                                  m_controlli.Toolbar1.dettagliato()));
}

void Contenuti::PopolaGrid2() {
    markTodayDaily(m_controlli.flxg, m_controlli.calendario, m_orologio.today());
    announce(planner::PopolaGrid2(m_sessione, m_controlli.calendario, m_controlli.flxg,
                                  m_controlli.Toolbar1.dettagliato()));
}

void Contenuti::PopolaGrid3() {
    planner::PopolaGrid3(m_sessione, m_controlli.calendario, m_controlli.flxa);
}

void Contenuti::announce(const EsitoRiempimento& esito) {
    if (esito.scartate > 0) {
        m_messaggi.critical(esito.messaggio());
    }
}

} // namespace planner
