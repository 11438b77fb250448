// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/kinds/kind.h"

#include <algorithm>
#include <array>

namespace planner {

namespace {

template <typename Wanted>
const RegoleTipo* findKind(Wanted wanted) {
    const std::array kinds{&mensile(), &giornaliero(), &annuale()};
    const auto found = std::find_if(kinds.begin(), kinds.end(), wanted);
    return found == kinds.end() ? nullptr : *found;
}

} // namespace

int RegoleTipo::colonnaGiorno(const Calendario& calendario, int colonna) const {
    return unGiorno ? colonna
                    : colonnaPrimoGiorno(calendario.Year(), calendario.Month()) + calendario.Day() - 1;
}

std::optional<TipoPlanner> tipoPlanner(std::string_view lettera) {
    const RegoleTipo* found = findKind([&](const RegoleTipo* each) {
        return lettera.size() == 1 && lettera.front() == static_cast<char>(each->tipo);
    });
    return found == nullptr ? std::nullopt : std::optional(found->tipo);
}

const RegoleTipo& regole(TipoPlanner tipo) {
    return *findKind([&](const RegoleTipo* each) { return each->tipo == tipo; });
}

const RegoleTipo* regoleVisibili(const ControlliPlcal& controlli) {
    return controlli.tipoVisibile ? &regole(*controlli.tipoVisibile) : nullptr;
}

} // namespace planner
