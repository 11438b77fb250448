// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/layout.h"

namespace planner {

void writeWeekdayLetters(Griglia& griglia) {
    for (int column = 1; column <= ColonneGiorni; ++column) {
        griglia.setText(0, column, LettereGiorni[static_cast<std::size_t>((column - 1) % 7)]);
        griglia.setCellForeColor(0, column, isWeekendColumn(column) ? Colore::rosso : Colore::nero);
    }
}

void writeStaffCaptions(Griglia& griglia, int firstRow, const Archivi& archivi, Allineamento allineamento) {
    int row = firstRow;
    for (int i = 0; i < archivi.NumCollab; ++i, ++row) {
        griglia.setText(row, 0, archivi.Collaboratori.at(static_cast<std::size_t>(i)).nome.trimmedRight());
        griglia.setCellAlignment(row, 0, allineamento);
    }
    griglia.setText(row, 0, NonAssegnate);
    griglia.setCellAlignment(row, 0, allineamento);
}

void writeCornerCaption(Griglia& griglia, int row, std::string_view text, Carattere carattere) {
    griglia.setText(row, 0, text);
    griglia.setCellFont(row, 0, carattere);
    griglia.setCellForeColor(row, 0, Colore::navy);
}

bool CheckGiornoFestivo(Griglia& griglia, int row, int col, int giorno, int mese) {
    const bool festivo = trovaFestivo(giorno, mese) != nullptr;
    if (festivo) {
        griglia.setCellForeColor(row, col, Colore::rosso);
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
    const Griglia::LockWindowUpdate lock(griglia);
    for (int row = griglia.FixedRows(); row < griglia.Rows(); ++row) {
        griglia.setRowHeight(row, dettagliato ? AltezzaDettagliata : AltezzaNonDettagliata);
    }
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
