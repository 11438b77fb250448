// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/contenuti.h"
#include "grids/today.h"
#include "session/period_moves.h"

namespace planner {

namespace {

class Mensile final : public RegoleTipo {
public:
    constexpr Mensile()
        : RegoleTipo({TipoPlanner::Mensile, "Flxm", "Planner Mensile", "Planner mensile",
                      &ControlliPlcal::Flxm,
                      /*perCollaboratore=*/true,
                      /*unGiorno=*/false, &Contenuti::LeggiDati, &Contenuti::PulisciGrid1,
                      &Contenuti::showgrid, &Contenuti::PopolaGrid1, markTodayMonthly}) {}

    bool dettagliato(std::string_view ModoFinestra) const override { return ModoFinestra != "N"; }
    std::string titolo(const modpl&, const Calendario& calendario, const std::string&) const override {
        return "Mese di " + std::string(nomeMese(calendario.Month())) + " " +
               std::to_string(calendario.Year());
    }

    PeriodoSessione limiti(const PeriodoSessione& periodo, Data) const override {
        return wholeMonths(periodo);
    }
    std::optional<Data> mossa(int riga, int passo, Data mostrata,
                              const PeriodoSessione& periodo) const override {
        return riga == 0 ? moveMonth(mostrata, passo, periodo) : moveYear(mostrata, passo, periodo);
    }
    bool mostraAnche(Data giorno, Data mostrata) const override {
        return giorno.year() == mostrata.year() && giorno.month() == mostrata.month();
    }

    std::optional<Data> giornoCella(const Calendario& c, Casella casella) const override {
        return makeDate(c.Year(), c.Month(), casella.colonna + 1 - colonnaPrimoGiorno(c.Year(), c.Month()));
    }
};

} // namespace

const RegoleTipo& mensile() {
    static constexpr Mensile regole;
    return regole;
}

} // namespace planner
