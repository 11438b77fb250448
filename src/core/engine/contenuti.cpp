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
    if (const RegoleTipo* tipo = regoleVisibili(m.controlli)) {
        m.controlli.Caption = tipo->Caption;
        (this->*tipo->pulisci)();
        (this->*tipo->leggi)();
        (this->*tipo->disponi)();
        (this->*tipo->popola)();
        Let_planner(collab);
    }
}

void Contenuti::rinnova() {
    const RegoleTipo* tipo = regoleVisibili(m.controlli);
    tipo != nullptr && tipo->unGiorno ? ricompila() : prepara();
}

void Contenuti::ricompila() {
    if (const RegoleTipo* tipo = regoleVisibili(m.controlli)) {
        (this->*tipo->pulisci)();
        setGridRows();
        (this->*tipo->popola)();
    }
}

void Contenuti::segnaOggi() {
    if (const RegoleTipo* tipo = regoleVisibili(m.controlli)) {
        tipo->segnaOggi(m.controlli.*tipo->griglia, m.controlli.calendario, m.orologio.today());
    }
}

void Contenuti::Let_planner(const std::string& collab) {
    if (const RegoleTipo* tipo = regoleVisibili(m.controlli)) {
        m.controlli.lbldescr = tipo->titolo(m.sessione, m.controlli.calendario, collab);
    }
}

void Contenuti::LeggiDati() {
    const std::string path = m.sessione.percorso(FileRighe);
    m.sessione.letture.righe = trap(m.messaggi, "Errore su File :", path,
                                    [&] { readRighePlanner(m.files, path, m.sessione.archivi); });
    // The weekday and the staff rows do not hang on this file: they hold without it too.
    Dayofweek();
    setGridRows();
}

void Contenuti::setGridRows() {
    m.controlli.Flxm.setRows(righeMensile(m.sessione.archivi.NumCollab));
    m.controlli.flxg.setRows(righeGiornaliera(m.sessione.archivi.NumCollab));
}

void Contenuti::LeggiDatiAnnuali() {
    const std::string path = m.sessione.percorso(FileAnnuale);
    m.sessione.letture.annuale = trap(m.messaggi, "Errore su File :", path, [&] {
        readPlannerAnnuale(m.files, path, m.sessione.archivi);
        m.controlli.calendario.setValue(
            dateFromTexts("01", "01", m.sessione.archivi.PlannerAnnuale.front().anno.view()));
    });
}

void Contenuti::leggiAnnoMostrato() {
    const Data mostrata = m.controlli.calendario.Value();
    LeggiDatiAnnuali();
    m.controlli.calendario.setValue(mostrata);
}

bool Contenuti::LeggiCollab() {
    bool& read = m.sessione.letture.collaboratori;
    read = true;
    try {
        readCollaboratori(m.files, m.sessione.percorso(FileCollaboratori), m.sessione.archivi);
    } catch (const RuntimeError&) {
        read = false;
    }
    m.sessione.indiceCodici = IndiceCodici(m.sessione.archivi.Collaboratori);
    return read;
}

void Contenuti::LeggiDatiPerGrafici() {
    const std::string path = m.sessione.percorso(FileGrafici);
    m.sessione.letture.grafici = trap(m.messaggi, "Errore sul File :", path,
                                      [&] { readRigheGrafici(m.files, path, m.sessione.archivi); });
}

void Contenuti::PopolaListaCollab(ListaCollaboratori& List_Prenotazione) const {
    List_Prenotazione.svuota();
    const std::vector<Collaboratore>& staff = m.sessione.archivi.Collaboratori;
    // The table's last element lies beyond the file's end.
    const auto count = std::min(static_cast<std::size_t>(m.sessione.archivi.NumCollab), staff.size());
    for (const Collaboratore& collaboratore : std::span(staff).first(count)) {
        List_Prenotazione.aggiungi(collaboratore.codice.view(), collaboratore.nome.view(),
                                   collaboratore.mansione.view());
    }
}

std::string Contenuti::EstraiCollaboratore(std::string_view codice) const {
    return planner::EstraiCollaboratore(m.sessione.archivi.Collaboratori, m.sessione.indiceCodici, codice);
}

void Contenuti::Dayofweek() {
    const Calendario& calendario = m.controlli.calendario;
    m.sessione.PrimoGiornoSettimana = primoGiornoSettimana(calendario.Year(), calendario.Month());
}

void Contenuti::showgrid() {
    planner::showgrid(m.sessione, m.controlli.calendario, m.controlli.Flxm);
    markTodayMonthly(m.controlli.Flxm, m.controlli.calendario, m.orologio.today());
}

void Contenuti::showgrid3() {
    planner::showgrid3(m.sessione, m.controlli.calendario, m.controlli.flxa);
    markTodayYearly(m.controlli.flxa, m.controlli.calendario, m.orologio.today());
}

void Contenuti::PopolaGrid1() {
    announce(planner::PopolaGrid1(m.sessione, m.controlli.calendario, m.controlli.Flxm,
                                  m.controlli.Toolbar1.dettagliato()));
}

void Contenuti::PopolaGrid2() {
    Dayofweek();
    markTodayDaily(m.controlli.flxg, m.controlli.calendario, m.orologio.today());
    announce(planner::PopolaGrid2(m.sessione, m.controlli.calendario, m.controlli.flxg,
                                  m.controlli.Toolbar1.dettagliato()));
}

void Contenuti::PopolaGrid3() {
    planner::PopolaGrid3(m.sessione, m.controlli.calendario, m.controlli.flxa);
}

void Contenuti::announce(const EsitoRiempimento& esito) {
    if (esito.scartate > 0) {
        m.messaggi.critical(esito.messaggio());
    }
}

} // namespace planner
