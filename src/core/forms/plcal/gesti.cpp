// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/gesti.h"

#include "archive/fixed_text.h"
#include "archive/numeric_value.h"

#include <algorithm>

namespace planner {

namespace {

bool isDataCell(const Griglia& griglia, int riga, int colonna) {
    return riga >= griglia.FixedRows() && riga < griglia.Rows() && colonna >= Griglia::FixedCols() &&
           colonna < griglia.Cols();
}

/// The column's day of the month: its place after the header's blank cells.
std::optional<Data> monthlyDay(const ControlliPlcal& controlli, int colonna) {
    constexpr int lastBlank = 6; // in column 7 at the latest the month has begun
    const Griglia& Flxm = controlli.Flxm;
    int blanks = 0;
    while (blanks < lastBlank && trim(Flxm.TextMatrix(1, blanks + 1)).empty()) {
        ++blanks;
    }
    const int day = colonna - blanks;
    if (trim(Flxm.TextMatrix(1, colonna)).empty() || day < 1) {
        return std::nullopt;
    }
    return makeDate(controlli.calendario.Year(), controlli.calendario.Month(), day);
}

std::optional<Data> yearlyDay(const ControlliPlcal& controlli, int riga, int colonna) {
    const std::string_view text = trim(controlli.flxa.TextMatrix(riga, colonna));
    return text.empty() ? std::nullopt
                        : makeDate(controlli.calendario.Year(), riga, static_cast<int>(numericValue(text)));
}

} // namespace

const EffettoGesto* effettoGesto(TipoPlanner tipo, Luogo luogo) {
    const auto found = std::find_if(EffettiGesti.begin(), EffettiGesti.end(), [&](const EffettoGesto& each) {
        return each.tipo == tipo && each.luogo == luogo;
    });
    return found == EffettiGesti.end() ? nullptr : &*found;
}

std::optional<Luogo> luogoDi(const ControlliPlcal& controlli, int riga, int colonna) {
    const Griglia* griglia = controlli.grigliaVisibile();
    if (griglia == nullptr || riga < griglia->FixedRows() || riga >= griglia->Rows() || colonna < 0 ||
        colonna >= griglia->Cols()) {
        return std::nullopt;
    }
    if (colonna < Griglia::FixedCols()) {
        return Luogo::nome;
    }
    if (trimRight(griglia->TextMatrix(riga, 0)).empty()) {
        return Luogo::rigaInPiu;
    }
    return giornoCella(controlli, *controlli.tipoVisibile, riga, colonna) ? Luogo::giorno
                                                                          : Luogo::senzaGiorno;
}

std::optional<Data> giornoCella(const ControlliPlcal& controlli, TipoPlanner tipo, int riga, int colonna) {
    if (!isDataCell(controlli.griglia(tipo), riga, colonna)) {
        return std::nullopt;
    }
    switch (tipo) {
    case TipoPlanner::Mensile:
        return monthlyDay(controlli, colonna);
    case TipoPlanner::Giornaliero:
        return controlli.calendario.Value();
    case TipoPlanner::Annuale:
        return yearlyDay(controlli, riga, colonna);
    }
    return std::nullopt;
}

int colonnaGiornoMostrato(const ControlliPlcal& controlli) {
    const Calendario& calendario = controlli.calendario;
    const int first = controlli.tipoVisibile == TipoPlanner::Mensile
                          ? columnOfFirstDay(controlli.Flxm)
                          : colonnaIniziale(primoGiornoSettimana(calendario.Year(), calendario.Month()));
    return first + calendario.Day() - 1;
}

} // namespace planner
