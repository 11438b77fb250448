// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/today.h"

#include "grids/layout.h"

namespace planner {

namespace {

/// Marks the column of today in the row, if the row shows the given month; no other column stays marked.
void markRow(Griglia& griglia, int row, int anno, int mese, Data oggi) {
    const bool shownMonth = anno == yearOf(oggi) && mese == monthOf(oggi);
    const int todays = shownMonth ? colonnaPrimoGiorno(anno, mese) + dayOf(oggi) - 1 : 0;
    for (int column = 1; column <= ColonneGiorni; ++column) {
        griglia.setCellToday(row, column, column == todays);
    }
}

} // namespace

void markTodayMonthly(Griglia& Flxm, const Calendario& calendario, Data oggi) {
    const Griglia::LockWindowUpdate lock(Flxm);
    for (int row = 0; row < Flxm.FixedRows(); ++row) {
        markRow(Flxm, row, calendario.Year(), calendario.Month(), oggi);
    }
}

void markTodayDaily(Griglia& flxg, const Calendario& calendario, Data oggi) {
    flxg.setCellToday(0, 0, calendario.Value() == oggi);
}

void markTodayYearly(Griglia& flxa, const Calendario& calendario, Data oggi) {
    const Griglia::LockWindowUpdate lock(flxa);
    for (int month = 1; month <= 12; ++month) {
        markRow(flxa, month, calendario.Year(), month, oggi);
    }
}

} // namespace planner
