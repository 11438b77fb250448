// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/tables.h"
#include "grids/griglia.h"
#include "session/calendar_rules.h"
#include "session/staff.h"

#include <array>
#include <string>
#include <string_view>

namespace planner {

/// Day columns of the monthly and yearly grids: up to six days of a first week, plus 31.
inline constexpr int ColonneGiorni = 37;
/// Quarter-hour columns of the daily grid.
inline constexpr int ColonneQuarti = 96;
inline constexpr int QuartiOra = 4;
/// Monthly and daily grids have rows to spare below the staff, for the unassigned row and for looks.
inline constexpr int RigheInPiu = 10;

inline constexpr int AltezzaNonDettagliata = 300; // twips
inline constexpr int AltezzaDettagliata = 1200;

inline constexpr std::string_view NonAssegnate = "*NON ASSEGNATE*";

/// Weekday letters of the day columns, Monday first.
inline constexpr std::array<std::string_view, 7> LettereGiorni{"L", "M", "M", "G", "V", "S", "D"};

/// True for the Saturday and Sunday columns, counted from 1.
constexpr bool isWeekendColumn(int column) {
    return (column - 1) % 7 >= 5;
}

/// True for the last column of a week, in the daily grid of an hour; for the names too.
inline bool finisceGruppo(const Griglia& griglia, int colonna) {
    return colonna % (griglia.Cols() == ColonneQuarti + 1 ? QuartiOra : 7) == 0;
}

/// Rows of the monthly grid and of the daily grid for a staff table with the given upper bound.
constexpr int righeMensile(int numCollab) {
    return numCollab + 2 + RigheInPiu;
}
constexpr int righeGiornaliera(int numCollab) {
    return numCollab + 1 + RigheInPiu;
}

/// Writes the weekday letters into row 0.
void writeWeekdayLetters(Griglia& griglia);

/// The row of a staff member in the monthly or daily grid, and whom a row stands for: a row below the staff
/// gives an index beyond the table, one above it none.
inline int rigaCollaboratore(const Griglia& griglia, IndiceCollaboratore indice) {
    return griglia.FixedRows() + indice.valore;
}
inline IndiceCollaboratore indiceDiRiga(const Griglia& griglia, int riga) {
    return {riga - griglia.FixedRows()};
}

/// The last data row that has a name; the first one where none has.
int ultimaRigaConNome(const Griglia& griglia);

/// Writes the staff names into column 0 of the data rows, in table order, and below them the row for
/// appointments whose staff code matches nobody.
void writeStaffCaptions(Griglia& griglia, const Archivi& archivi, Ruolo ruolo);

/// Makes the cell a holiday's, which colours it pure red, and returns true when the day, counted from 0, of
/// month 1 to 12 is one.
bool CheckGiornoFestivo(Griglia& griglia, int row, int col, int giorno, int mese);

/// Empties every data row: the rows are dropped and made anew.
void clearRows(Griglia& griglia);
/// Gives every data row the height of the detailed or the plain display.
void setDataRowHeights(Griglia& griglia, bool dettagliato);
/// Both, for a grid of the staff.
void clearStaffRows(Griglia& griglia, bool dettagliato);

/// What a fill could not show.
struct EsitoRiempimento {
    int scartate = 0;       // records left out
    std::string primaCausa; // why the first one was, Italian, UTF-8

    void annota(const std::string& causa);
    /// The sentence for the user; empty when everything is shown.
    std::string messaggio() const;
};

} // namespace planner
