// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/gesti.h"

#include "archive/fixed_text.h"
#include "engine/kinds/kind.h"

#include <algorithm>

namespace planner {

const EffettoGesto* effettoGesto(TipoPlanner tipo, Luogo luogo) {
    const auto found = std::find_if(EffettiGesti.begin(), EffettiGesti.end(), [&](const EffettoGesto& each) {
        return each.tipo == tipo && each.luogo == luogo;
    });
    return found == EffettiGesti.end() ? nullptr : &*found;
}

std::optional<Luogo> luogoDi(const ControlliPlcal& controlli, Casella casella) {
    const auto [riga, colonna] = casella;
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
    return giornoCella(controlli, *controlli.tipoVisibile, casella) ? Luogo::giorno : Luogo::senzaGiorno;
}

std::optional<Data> giornoCella(const ControlliPlcal& controlli, TipoPlanner tipo, Casella casella) {
    return controlli.griglia(tipo).isDataCell(casella)
               ? regole(tipo).giornoCella(controlli.calendario, casella)
               : std::nullopt;
}

} // namespace planner
