// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/fixed_text.h"
#include "archive/readers.h"
#include "engine/clsplg.h"
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

std::string clsplg::archivePath(std::string_view file) const {
    return m.sessione.PathArchivi + std::string(file);
}

void clsplg::LeggiDati() {
    const std::string path = archivePath(FileRighe);
    m.sessione.letture.righe = trap(m.messaggi, "Errore su File :", path,
                                    [&] { readRighePlanner(m.files, path, m.sessione.archivi); });
    // The shown day and the staff rows do not hang on this file: they hold without it too.
    m.controlli.calendario.setValue(m.sessione.DataSessione);
    Dayofweek();
    setGridRows();
}

void clsplg::setGridRows() {
    m.controlli.Flxm.setRows(righeMensile(m.sessione.archivi.NumCollab));
    m.controlli.flxg.setRows(righeGiornaliera(m.sessione.archivi.NumCollab));
}

void clsplg::LeggiDatiAnnuali() {
    const std::string path = archivePath(FileAnnuale);
    m.sessione.letture.annuale = trap(m.messaggi, "Errore su File :", path, [&] {
        readPlannerAnnuale(m.files, path, m.sessione.archivi);
        m.controlli.calendario.setValue(
            dateFromTexts("01", "01", m.sessione.archivi.PlannerAnnuale.front().anno.view()));
    });
}

bool clsplg::LeggiCollab() {
    bool& read = m.sessione.letture.collaboratori;
    read = true;
    try {
        readCollaboratori(m.files, archivePath(FileCollaboratori), m.sessione.archivi);
    } catch (const RuntimeError&) {
        read = false;
    }
    m.sessione.indiceCodici = IndiceCodici(m.sessione.archivi.Collaboratori);
    return read;
}

void clsplg::LeggiDatiPerGrafici() {
    const std::string path = archivePath(FileGrafici);
    m.sessione.letture.grafici = trap(m.messaggi, "Errore sul File :", path,
                                      [&] { readRigheGrafici(m.files, path, m.sessione.archivi); });
}

void clsplg::PopolaListaCollab(ListaCollaboratori& List_Prenotazione) const {
    List_Prenotazione.svuota();
    const std::vector<Collaboratore>& staff = m.sessione.archivi.Collaboratori;
    // The table's last element lies beyond the file's end.
    const auto count = std::min(static_cast<std::size_t>(m.sessione.archivi.NumCollab), staff.size());
    for (const Collaboratore& collaboratore : std::span(staff).first(count)) {
        List_Prenotazione.aggiungi(collaboratore.codice.view(), collaboratore.nome.view(),
                                   collaboratore.mansione.view());
    }
}

std::int16_t clsplg::IndCollaboratore(std::string_view codice) const {
    return m.sessione.indiceCodici.IndCollaboratore(codice);
}

std::string clsplg::EstraiCollaboratore(std::string_view codice) const {
    return planner::EstraiCollaboratore(m.sessione.archivi.Collaboratori, m.sessione.indiceCodici, codice);
}

} // namespace planner
