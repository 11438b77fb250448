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

CellaAnnuale cellOf(const Archivi& archivi, int riga, int colonna) {
    const auto month = static_cast<std::size_t>(riga - 1);
    const auto cell = static_cast<std::size_t>(colonna - 1);
    if (riga < 1 || colonna < 1 || month >= archivi.PlannerAnnuale.size() || cell >= MesePlanner::CellCount) {
        throw SubscriptError();
    }
    const MesePlanner& mese = archivi.PlannerAnnuale[month];
    return {mese.segni[cell], mese.testi[cell]};
}

double numberAt(const FixedText<44>& testo, std::int8_t place) {
    return place < 0 ? 0
                     : numericValue(
                           slice(testo.view(), static_cast<std::size_t>(place) * NumberLength, NumberLength));
}

} // namespace

bool giornoSegnato(const Archivi& archivi, int riga, int colonna) {
    return cellOf(archivi, riga, colonna).segno.view() == "*";
}

std::array<TotaleGiorno, CampiAnnuali.size()> totaliGiorno(const Archivi& archivi, int riga, int colonna) {
    const CellaAnnuale cell = cellOf(archivi, riga, colonna);
    const bool marked = cell.segno.view() == "*";
    std::array<TotaleGiorno, CampiAnnuali.size()> totals{};
    for (std::size_t i = 0; i < CampiAnnuali.size(); ++i) {
        const auto& [first, second] = CampiAnnuali[i].numeri;
        totals[i] = {&CampiAnnuali[i],
                     marked ? numberAt(cell.testo, first) + numberAt(cell.testo, second) : 0};
    }
    return totals;
}

} // namespace planner
