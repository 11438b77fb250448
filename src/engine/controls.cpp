// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/controls.h"

namespace planner {

std::optional<TipoPlanner> tipoPlanner(std::string_view lettera) {
    for (const TipoPlanner tipo : {TipoPlanner::Mensile, TipoPlanner::Giornaliero, TipoPlanner::Annuale}) {
        if (lettera.size() == 1 && lettera.front() == static_cast<char>(tipo)) {
            return tipo;
        }
    }
    return std::nullopt;
}

Griglia* ControlliPlcal::grigliaVisibile() {
    if (!tipoVisibile) {
        return nullptr;
    }
    switch (*tipoVisibile) {
    case TipoPlanner::Mensile:
        return &Flxm;
    case TipoPlanner::Giornaliero:
        return &flxg;
    case TipoPlanner::Annuale:
        return &flxa;
    }
    return nullptr;
}

std::string_view ControlliPlcal::nomeGrigliaVisibile() const {
    if (!tipoVisibile) {
        return {};
    }
    return *tipoVisibile == TipoPlanner::Mensile       ? "Flxm"
           : *tipoVisibile == TipoPlanner::Giornaliero ? "flxg"
                                                       : "flxa";
}

} // namespace planner
