// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/contenuti.h"
#include "grids/today.h"
#include "session/period_moves.h"

namespace planner {

namespace {

class Annuale final : public RegoleTipo {
public:
    constexpr Annuale()
        : RegoleTipo({TipoPlanner::Annuale, "flxa", "Planner Annuale", "Planner annuale",
                      &ControlliPlcal::flxa,
                      /*perCollaboratore=*/false,
                      /*unGiorno=*/false, &Contenuti::leggiAnnoMostrato, &Contenuti::PulisciGrid3,
                      &Contenuti::showgrid3, &Contenuti::PopolaGrid3, markTodayYearly}) {}

    /// The same day of the period's year; 29 February becomes 28 where the year lacks it.
    Data giornoDaMostrare(Data giorno, Data inizio) const override {
        const Data there{inizio.year(), giorno.month(), giorno.day()};
        return there.ok() ? there : Data{inizio.year(), giorno.month(), std::chrono::day{28}};
    }
    std::string titolo(const modpl& sessione, const Calendario&, const std::string& collab) const override {
        const std::string year = "Anno " + sessione.periodo.AnnoInizio();
        return sessione.ModoFinestra == "N"
                   ? year
                   : year + " Impegni di: " +
                         EstraiCollaboratore(sessione.archivi.Collaboratori, sessione.indiceCodici, collab);
    }

    PeriodoSessione limiti(const PeriodoSessione&, Data mostrata) const override {
        return wholeYear(mostrata);
    }
    /// The host moves to the other year, wherever it lies: the shown day stays.
    std::optional<Data> mossa(int, int, Data mostrata, const PeriodoSessione&) const override {
        return mostrata;
    }
    bool mostraAnche(Data giorno, Data mostrata) const override { return giorno.year() == mostrata.year(); }

    std::optional<Data> giornoCella(const Calendario& c, Casella casella) const override {
        return makeDate(c.Year(), casella.riga,
                        casella.colonna + 1 - colonnaPrimoGiorno(c.Year(), casella.riga));
    }
};

} // namespace

const RegoleTipo& annuale() {
    static constexpr Annuale regole;
    return regole;
}

} // namespace planner
