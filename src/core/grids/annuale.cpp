// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/annuale.h"

namespace planner {

namespace {

constexpr int NameWidth = 2000; // twips
constexpr int DayWidth = 350;
constexpr int HeaderHeight = 500;
constexpr int MonthHeight = 700;

void layOutMonth(const modpl& sessione, Griglia& flxa, int year, int month) {
    flxa.setCaption(month, 0, Ruolo::mese, nomeMese(month));
    const int start = colonnaPrimoGiorno(year, month);
    const int days = lunghezzaMese(sessione.GiorniMese, month);
    for (int day = 1; day <= days; ++day) {
        const int column = start + day - 1;
        flxa.setCaption(month, column, Ruolo::giornoAnno, std::to_string(day), isWeekendColumn(column));
    }
}

} // namespace

void showgrid3(modpl& sessione, const Calendario& calendario, Griglia& flxa) {
    const Griglia::LockWindowUpdate lock(flxa);
    sessione.CalendarioAttivo = false;
    sessione.GiorniMese = giorniMese(calendario.Year());
    flxa.setRowHeight(0, HeaderHeight);
    flxa.setDataRowHeight(MonthHeight);
    flxa.setColWidth(0, NameWidth);
    for (int column = 1; column <= ColonneGiorni; ++column) {
        flxa.setColWidth(column, DayWidth);
    }
    writeWeekdayLetters(flxa);
    for (int month = 1; month <= 12; ++month) {
        layOutMonth(sessione, flxa, calendario.Year(), month);
    }
}

void PopolaGrid3(modpl& sessione, const Calendario& calendario, Griglia& flxa) {
    const Griglia::LockWindowUpdate lock(flxa);
    sessione.CalendarioAttivo = false;
    for (int month = 1; month <= 12; ++month) {
        const MesePlanner& mese = sessione.archivi.PlannerAnnuale.at(static_cast<std::size_t>(month - 1));
        for (int column = 1; column <= ColonneGiorni; ++column) {
            if (mese.segni.at(static_cast<std::size_t>(column - 1)).view() == "*") {
                flxa.segna(month, column);
            }
        }
    }
    flxa.setCaption(0, 0, Ruolo::anno, std::to_string(calendario.Year()));
}

} // namespace planner
