// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/mensile.h"

#include "archive/numeric_value.h"
#include "grids/entries.h"

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
    EsitoRiempimento esito = forEachRecord(sessione.archivi, inShownMonth, [&](const RigaPlanner& riga) {
        const Impegno impegno = leggiImpegno(riga, sessione, dettagliato);
        sessione.TotaliImpegni.aggiungi(impegno.indice, impegno.valori);
        if (impegno.immagine != 0) {
            Flxm.setCellPicture(rigaCollaboratore(Flxm, impegno.indice), firstDay + dayOf(impegno.data) - 1,
                                impegno.immagine, impegno.tipi);
        }
    });
    Flxm.setCurrent({PrimaRigaMensile, 1});
    return esito;
}

} // namespace planner
