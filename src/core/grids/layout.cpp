// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/layout.h"

namespace planner {

void writeWeekdayLetters(Griglia& griglia) {
    for (int column = 1; column <= ColonneGiorni; ++column) {
        griglia.setCaption(0, column, Ruolo::lettera,
                           LettereGiorni[static_cast<std::size_t>((column - 1) % 7)],
                           isWeekendColumn(column));
    }
}

int ultimaRigaConNome(const Griglia& griglia) {
    int riga = griglia.Rows() - 1;
    while (riga > griglia.FixedRows() && trimRight(griglia.TextMatrix(riga, 0)).empty()) {
        --riga;
    }
    return riga;
}

void writeStaffCaptions(Griglia& griglia, const Archivi& archivi, Ruolo ruolo) {
    for (int i = 0; i < archivi.NumCollab; ++i) {
        griglia.setCaption(rigaCollaboratore(griglia, {i}), 0, ruolo,
                           archivi.Collaboratori.at(static_cast<std::size_t>(i)).nome.trimmedRight());
    }
    griglia.setCaption(rigaCollaboratore(griglia, {archivi.NumCollab}), 0, ruolo, NonAssegnate);
}

bool CheckGiornoFestivo(Griglia& griglia, int row, int col, int giorno, int mese) {
    const bool festivo = trovaFestivo(giorno, mese) != nullptr;
    if (festivo) {
        griglia.setCellHoliday(row, col);
    }
    return festivo;
}

void clearRows(Griglia& griglia) {
    const Griglia::LockWindowUpdate lock(griglia);
    const int rows = griglia.Rows();
    griglia.setRows(griglia.FixedRows());
    griglia.setRows(rows);
}

void setDataRowHeights(Griglia& griglia, bool dettagliato) {
    griglia.setDataRowHeight(dettagliato ? AltezzaDettagliata : AltezzaNonDettagliata);
}

void clearStaffRows(Griglia& griglia, bool dettagliato) {
    const Griglia::LockWindowUpdate lock(griglia);
    clearRows(griglia);
    setDataRowHeights(griglia, dettagliato);
}

void EsitoRiempimento::annota(const std::string& causa) {
    if (scartate++ == 0) {
        primaCausa = causa;
    }
}

std::string EsitoRiempimento::messaggio() const {
    if (scartate == 0) {
        return {};
    }
    return scartate == 1 ? "Una riga degli impegni non è stata mostrata: " + primaCausa + "."
                         : std::to_string(scartate) +
                               " righe degli impegni non sono state mostrate. La prima: " + primaCausa + ".";
}

} // namespace planner
