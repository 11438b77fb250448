// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/controls.h"

#include "grids/today.h"

#include <utility>

namespace planner {

std::optional<TipoPlanner> tipoPlanner(std::string_view lettera) {
    for (const TipoPlanner tipo : {TipoPlanner::Mensile, TipoPlanner::Giornaliero, TipoPlanner::Annuale}) {
        if (lettera.size() == 1 && lettera.front() == static_cast<char>(tipo)) {
            return tipo;
        }
    }
    return std::nullopt;
}

const Griglia& ControlliPlcal::griglia(TipoPlanner tipo) const {
    return tipo == TipoPlanner::Mensile ? Flxm : tipo == TipoPlanner::Giornaliero ? flxg : flxa;
}

Griglia& ControlliPlcal::griglia(TipoPlanner tipo) {
    return const_cast<Griglia&>(std::as_const(*this).griglia(tipo));
}

std::string_view ControlliPlcal::nomeGrigliaVisibile() const {
    if (!tipoVisibile) {
        return {};
    }
    return *tipoVisibile == TipoPlanner::Mensile       ? "Flxm"
           : *tipoVisibile == TipoPlanner::Giornaliero ? "flxg"
                                                       : "flxa";
}

void segnaOggi(ControlliPlcal& controlli, Data oggi) {
    if (!controlli.tipoVisibile) {
        return;
    }
    switch (*controlli.tipoVisibile) {
    case TipoPlanner::Mensile:
        return markTodayMonthly(controlli.Flxm, controlli.calendario, oggi);
    case TipoPlanner::Giornaliero:
        return markTodayDaily(controlli.flxg, controlli.calendario, oggi);
    case TipoPlanner::Annuale:
        return markTodayYearly(controlli.flxa, controlli.calendario, oggi);
    }
}

} // namespace planner
