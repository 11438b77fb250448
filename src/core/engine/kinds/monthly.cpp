// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/fixed_text.h"
#include "engine/contenuti.h"
#include "grids/today.h"
#include "session/period_moves.h"

namespace planner {

namespace {

/// The blank cells before the header's first day.
int blanksBeforeFirst(const Griglia& Flxm) {
    constexpr int lastBlank = 6; // in column 7 at the latest the month has begun
    int blanks = 0;
    while (blanks < lastBlank && trim(Flxm.TextMatrix(1, blanks + 1)).empty()) {
        ++blanks;
    }
    return blanks;
}

class Mensile final : public RegoleTipo {
public:
    constexpr Mensile()
        : RegoleTipo({TipoPlanner::Mensile, "Flxm", "Planner Mensile", &ControlliPlcal::Flxm,
                      /*perCollaboratore=*/true,
                      /*unGiorno=*/false, &Contenuti::LeggiDati, &Contenuti::PulisciGrid1,
                      &Contenuti::showgrid, &Contenuti::PopolaGrid1}) {}

    bool dettagliato(std::string_view ModoFinestra) const override { return ModoFinestra != "N"; }
    std::string titolo(const modpl&, const Calendario& calendario, const std::string&) const override {
        return "Mese di " + std::string(nomeMese(calendario.Month())) + " " +
               std::to_string(calendario.Year());
    }

    void segnaOggi(ControlliPlcal& controlli, Data oggi) const override {
        markTodayMonthly(controlli.Flxm, controlli.calendario, oggi);
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

    std::optional<Data> giornoCella(const ControlliPlcal& controlli, int, int colonna) const override {
        if (trim(controlli.Flxm.TextMatrix(1, colonna)).empty()) {
            return std::nullopt;
        }
        const Calendario& calendario = controlli.calendario;
        return makeDate(calendario.Year(), calendario.Month(), colonna - blanksBeforeFirst(controlli.Flxm));
    }
    int colonnaGiorno(const ControlliPlcal& controlli, int) const override {
        return columnOfFirstDay(controlli.Flxm) + controlli.calendario.Day() - 1;
    }
};

constexpr Mensile Regole;

} // namespace

const RegoleTipo& mensile() {
    return Regole;
}

} // namespace planner
