// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/yearly_day.h"

#include "archive/numeric_value.h"
#include "ports/runtime_errors.h"

namespace planner {

namespace {

constexpr std::size_t NumberLength = 4; // characters

struct CellaAnnuale {
    const FixedText<1>& segno;
    const FixedText<44>& testo;
};

CellaAnnuale cellOf(const Archivi& archivi, Casella casella) {
    const auto month = static_cast<std::size_t>(casella.riga - 1);
    const auto cell = static_cast<std::size_t>(casella.colonna - 1);
    if (casella.riga < 1 || casella.colonna < 1 || month >= archivi.PlannerAnnuale.size() ||
        cell >= MesePlanner::CellCount) {
        throw SubscriptError();
    }
    const MesePlanner& mese = archivi.PlannerAnnuale[month];
    return {mese.segni[cell], mese.testi[cell]};
}

} // namespace

bool giornoSegnato(const Archivi& archivi, Casella casella) {
    return cellOf(archivi, casella).segno.view() == "*";
}

ValoriContatori valoriGiorno(const Archivi& archivi, Casella casella) {
    const CellaAnnuale cell = cellOf(archivi, casella);
    ValoriContatori valori{};
    for (std::size_t i = 1; cell.segno.view() == "*" && i < valori.size(); ++i) {
        valori[i] = numericValue(slice(cell.testo.view(), (i - 1) * NumberLength, NumberLength));
    }
    return valori;
}

} // namespace planner
