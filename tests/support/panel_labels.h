// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/panel.h"

namespace planner::test {

/// What the label of the given name shows. Throws std::out_of_range when there is none.
inline const StatoEtichetta& etichetta(const PannelloDettagli& pannello, std::string_view nome) {
    std::size_t place = 0;
    while (EtichetteTotali.at(place).nome != nome) {
        ++place;
    }
    return pannello.totali.at(place);
}

} // namespace planner::test
