// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/today.h"

#include "grids/layout.h"

namespace planner {

void markTodayMonthly(Griglia& Flxm, const Calendario& calendario, Data oggi) {
    const Griglia::LockWindowUpdate lock(Flxm);
    const bool shownMonth = calendario.Month() == monthOf(oggi) && calendario.Year() == yearOf(oggi);
    const std::string day = std::to_string(dayOf(oggi));
    for (int column = 1; column <= ColonneGiorni; ++column) {
        const bool today = shownMonth && Flxm.TextMatrix(1, column) == day;
        Flxm.setCellToday(0, column, today);
        Flxm.setCellToday(1, column, today);
    }
}

void markTodayDaily(Griglia& flxg, const Calendario& calendario, Data oggi) {
    flxg.setCellToday(0, 0, calendario.Value() == oggi);
}

void markTodayYearly(Griglia& flxa, const Calendario& calendario, Data oggi) {
    const Griglia::LockWindowUpdate lock(flxa);
    const std::string day = std::to_string(dayOf(oggi));
    for (int month = 1; month <= 12; ++month) {
        const bool shownMonth = calendario.Year() == yearOf(oggi) && month == monthOf(oggi);
        for (int column = 1; column <= ColonneGiorni; ++column) {
            flxa.setCellToday(month, column, shownMonth && flxa.TextMatrix(month, column) == day);
        }
    }
}

} // namespace planner
