// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/gesti.h"

#include "archive/fixed_text.h"
#include "engine/kinds/kind.h"

#include <algorithm>

namespace planner {

namespace {

bool isDataCell(const Griglia& griglia, int riga, int colonna) {
    return riga >= griglia.FixedRows() && riga < griglia.Rows() && colonna >= Griglia::FixedCols() &&
           colonna < griglia.Cols();
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
    return isDataCell(controlli.griglia(tipo), riga, colonna)
               ? regole(tipo).giornoCella(controlli.calendario, riga, colonna)
               : std::nullopt;
}

} // namespace planner
