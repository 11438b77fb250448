// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/contenuti.h"
#include "grids/today.h"
#include "session/period_moves.h"

namespace planner {

namespace {

std::string dayInWords(Data data) {
    return std::to_string(dayOf(data)) + " " + std::string(nomeMese(monthOf(data))) + " " +
           std::to_string(yearOf(data));
}

class Giornaliero final : public RegoleTipo {
public:
    constexpr Giornaliero()
        : RegoleTipo({TipoPlanner::Giornaliero, "flxg", "Planner Giornaliero", "Planner giornaliero",
                      &ControlliPlcal::flxg,
                      /*perCollaboratore=*/true,
                      /*unGiorno=*/true, &Contenuti::LeggiDati, &Contenuti::PulisciGrid2,
                      &Contenuti::showgrid2, &Contenuti::PopolaGrid2, markTodayDaily}) {}

    std::string titolo(const modpl& sessione, const Calendario&, const std::string&) const override {
        return "Dal " + dayInWords(sessione.periodo.inizio) + " al " + dayInWords(sessione.periodo.fine);
    }

    PeriodoSessione limiti(const PeriodoSessione& periodo, Data) const override { return periodo; }
    std::optional<Data> mossa(int, int passo, Data mostrata, const PeriodoSessione& periodo) const override {
        return moveDay(mostrata, passo, periodo);
    }
    bool mostraAnche(Data giorno, Data mostrata) const override { return giorno == mostrata; }

    std::optional<Data> giornoCella(const Calendario& c, Casella) const override { return c.Value(); }
};

} // namespace

const RegoleTipo& giornaliero() {
    static constexpr Giornaliero regole;
    return regole;
}

} // namespace planner
