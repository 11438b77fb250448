// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/controls.h"

#include "engine/kinds/kind.h"

namespace planner {

const Griglia& ControlliPlcal::griglia(TipoPlanner tipo) const {
    return this->*regole(tipo).griglia;
}

Griglia& ControlliPlcal::griglia(TipoPlanner tipo) {
    return this->*regole(tipo).griglia;
}

std::string_view ControlliPlcal::nomeGrigliaVisibile() const {
    return tipoVisibile ? regole(*tipoVisibile).nomeGriglia : std::string_view{};
}

std::string ControlliPlcal::tipoplanner() const {
    return tipoVisibile ? std::string(1, static_cast<char>(*tipoVisibile)) : std::string();
}

} // namespace planner
