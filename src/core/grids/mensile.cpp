// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/mensile.h"

#include "archive/numeric_value.h"
#include "grids/entries.h"

#include <algorithm>
#include <cmath>

namespace planner {

namespace {

constexpr int NameWidth = 2000; // twips
constexpr int DayWidth = 350;
constexpr int HeaderHeight = 300;

void layOutColumns(Griglia& Flxm) {
    Flxm.setColWidth(0, NameWidth);
    for (int column = 1; column <= ColonneGiorni; ++column) {
        Flxm.setColWidth(column, DayWidth);
        Flxm.setCaption(1, column, Ruolo::casella, "");
    }
    Flxm.setRowHeight(0, HeaderHeight);
    Flxm.setRowHeight(1, HeaderHeight);
}

void writeDay(Griglia& Flxm, int column, int day, int month) {
    Flxm.setCaption(1, column, Ruolo::numeroGiorno, std::to_string(day), isWeekendColumn(column));
    if (CheckGiornoFestivo(Flxm, 0, column, day - 1, month)) {
        Flxm.setCellHoliday(1, column);
    }
}

/// The office's deadlines of each day of a month, counted from 1.
using ScadenzeGiorni = std::array<double, GiorniMassimi + 1>;

void showDeadlines(Griglia& Flxm, int firstDay, int days, const ScadenzeGiorni& scadenze) {
    std::vector<int> columns(static_cast<std::size_t>(Flxm.Cols()), -1);
    int most = 0;
    for (int day = 1; day <= days; ++day) {
        constexpr double limit = 1e6; // an archive may hold any number
        const double sum = std::clamp(scadenze.at(static_cast<std::size_t>(day)), 0.0, limit);
        const int count = static_cast<int>(std::lround(sum));
        columns.at(static_cast<std::size_t>(firstDay + day - 1)) = count;
        most = std::max(most, count);
    }
    Flxm.setRiepilogo(std::move(columns), most);
}

} // namespace

int columnOfFirstDay(const Griglia& Flxm) {
    int column = 0;
    while (numericValue(Flxm.TextMatrix(1, column)) != 1) {
        ++column;
    }
    return column;
}

void showgrid(modpl& sessione, const Calendario& calendario, Griglia& Flxm) {
    const Griglia::LockWindowUpdate lock(Flxm);
    sessione.GiorniMese = giorniMese(calendario.Year());
    layOutColumns(Flxm);
    writeWeekdayLetters(Flxm);
    const int start = colonnaPrimoGiorno(calendario.Year(), calendario.Month());
    const int days = lunghezzaMese(sessione.GiorniMese, calendario.Month());
    for (int day = 1; day <= days; ++day) {
        writeDay(Flxm, start + day - 1, day, calendario.Month());
    }
}

EsitoRiempimento PopolaGrid1(modpl& sessione, const Calendario& calendario, Griglia& Flxm, bool dettagliato) {
    const Griglia::LockWindowUpdate lock(Flxm);
    Flxm.setCaption(0, 0, Ruolo::periodo, nomeMese(calendario.Month()));
    Flxm.setCaption(1, 0, Ruolo::periodo, std::to_string(calendario.Year()));
    writeStaffCaptions(Flxm, sessione.archivi, Ruolo::nomeMensile);
    setDataRowHeights(Flxm, dettagliato);

    sessione.TotaliImpegni = TabellaTotali(sessione.archivi.NumRighe);
    const int firstDay = columnOfFirstDay(Flxm);
    const auto inShownMonth = [&](const RigaPlanner& riga) {
        return numericValue(riga.mese.view()) == calendario.Month() &&
               numericValue(riga.anno.view()) == calendario.Year();
    };
    ScadenzeGiorni deadlines{};
    EsitoRiempimento esito = forEachRecord(sessione.archivi, inShownMonth, [&](const RigaPlanner& riga) {
        const Impegno impegno = leggiImpegno(riga, sessione, dettagliato);
        sessione.TotaliImpegni.aggiungi(impegno.indice, impegno.valori);
        deadlines.at(static_cast<std::size_t>(dayOf(impegno.data))) +=
            somma(impegno.valori, Totale::scadenze);
        if (impegno.immagine != 0) {
            Flxm.setCellPicture(rigaCollaboratore(Flxm, impegno.indice), firstDay + dayOf(impegno.data) - 1,
                                impegno.immagine, impegno.tipi);
        }
    });
    if (sessione.varianteRidotta()) {
        Flxm.setRiepilogo({}, 0);
    } else {
        showDeadlines(Flxm, firstDay, lunghezzaMese(sessione.GiorniMese, calendario.Month()), deadlines);
    }
    Flxm.setCurrent({PrimaRigaMensile, 1});
    return esito;
}

} // namespace planner
