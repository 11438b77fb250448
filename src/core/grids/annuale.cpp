// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/annuale.h"

namespace planner {

namespace {

constexpr int NameWidth = 2000; // twips
constexpr int DayWidth = 350;
constexpr int HeaderHeight = 500;
constexpr int MonthHeight = 700;

void layOutMonth(const modpl& sessione, Griglia& flxa, int month) {
    flxa.setRowHeight(month, MonthHeight);
    flxa.setText(month, 0, nomeMese(month));
    flxa.setCellFont(month, 0, Carattere::grassetto);
    flxa.setCellAlignment(month, 0, Allineamento::sinistra);
    const int start = colonnaIniziale(sessione.PrimoGiornoSettimana);
    const int days = lunghezzaMese(sessione.GiorniMese, month);
    for (int day = 1; day <= days; ++day) {
        const int column = start + day - 1;
        flxa.setText(month, column, std::to_string(day));
        flxa.setCellForeColor(month, column, isWeekendColumn(column) ? Colore::rosso : Colore::nero);
        flxa.setCellBackColor(month, column, Colore::grigioChiaro);
    }
}

} // namespace

void showgrid3(modpl& sessione, Calendario& calendario, Griglia& flxa) {
    const Griglia::LockWindowUpdate lock(flxa);
    sessione.CalendarioAttivo = false;
    sessione.GiorniMese = giorniMese(calendario.Year());
    const int shownMonth = calendario.Month();
    flxa.setRowHeight(0, HeaderHeight);
    flxa.setColWidth(0, NameWidth);
    for (int column = 1; column <= ColonneGiorni; ++column) {
        flxa.setColWidth(column, DayWidth);
    }
    writeWeekdayLetters(flxa);
    const CalendarioSalvato saved(calendario);
    for (int month = 1; month <= 12; ++month) {
        calendario.setValue(dateFromTexts("01", std::to_string(month), std::to_string(calendario.Year())));
        sessione.PrimoGiornoSettimana = primoGiornoSettimana(calendario.Year(), calendario.Month());
        layOutMonth(sessione, flxa, month);
    }
    sessione.PrimoGiornoSettimana = primoGiornoSettimana(calendario.Year(), shownMonth);
}

void PopolaGrid3(modpl& sessione, const Calendario& calendario, Griglia& flxa) {
    const Griglia::LockWindowUpdate lock(flxa);
    sessione.CalendarioAttivo = false;
    for (int month = 1; month <= 12; ++month) {
        const MesePlanner& mese = sessione.archivi.PlannerAnnuale.at(static_cast<std::size_t>(month - 1));
        for (int column = 1; column <= ColonneGiorni; ++column) {
            if (mese.segni.at(static_cast<std::size_t>(column - 1)).view() == "*") {
                flxa.setCellForeColor(month, column, Colore::bianco);
                flxa.setCellBackColor(month, column, Colore::navy);
            }
        }
    }
    writeCornerCaption(flxa, 0, std::to_string(calendario.Year()), Carattere::anno);
    flxa.setCellAlignment(0, 0, Allineamento::centro);
}

void PulisciGrid3(Griglia& flxa) {
    clearRows(flxa);
}

} // namespace planner
