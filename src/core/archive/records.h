// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/field.h"
#include "archive/fixed_text.h"

#include <array>

namespace planner {

/// One line of appointments of one staff member on one day (file `wrighipl`).
/// Fields named `campoN` belong to the host; they are kept and never read.
struct RigaPlanner {
    FixedText<2> codice;
    FixedText<4> anno;
    FixedText<2> mese;
    FixedText<2> giorno;
    FixedText<2> campo5;
    FixedText<4> campo6;
    FixedText<2> oraInizio;
    FixedText<2> minutoInizio;
    FixedText<2> campo9;
    FixedText<2> campo10;
    std::array<FixedText<5>, 11> contatori;
    FixedText<1> campo22;
    FixedText<7> durata;
    FixedText<2> campo24;

    /// Counter `number`, 1 to 11 in file order.
    const FixedText<5>& contatore(std::size_t number) const { return contatori.at(number - 1); }
};

inline constexpr std::array RigaPlannerFields{
    Field{"codice", 0, 2, "staff code"},
    Field{"anno", 2, 4, "year"},
    Field{"mese", 6, 2, "month"},
    Field{"giorno", 8, 2, "day"},
    Field{"campo5", 10, 2, "host's own"},
    Field{"campo6", 12, 4, "host's own"},
    Field{"oraInizio", 16, 2, "start hour, 0 to 23; anything else: no start"},
    Field{"minutoInizio", 18, 2, "start minute"},
    Field{"campo9", 20, 2, "host's own"},
    Field{"campo10", 22, 2, "host's own"},
    Field{"contatore1", 24, 5, "deadlines, first counter"},
    Field{"contatore2", 29, 5, "case files, first counter"},
    Field{"contatore3", 34, 5, "deadlines concluded, first counter"},
    Field{"contatore4", 39, 5, "case files concluded, first counter"},
    Field{"contatore5", 44, 5, "deadlines, second counter"},
    Field{"contatore6", 49, 5, "case files, second counter"},
    Field{"contatore7", 54, 5, "note riservate"},
    Field{"contatore8", 59, 5, "impegni vari"},
    Field{"contatore9", 64, 5, "deadlines concluded, second counter"},
    Field{"contatore10", 69, 5, "case files concluded, second counter"},
    Field{"contatore11", 74, 5, "accumulated, shown nowhere"},
    Field{"campo22", 79, 1, "host's own"},
    Field{"durata", 80, 7, "length: hours in the first five characters, minutes in the last two"},
    Field{"campo24", 87, 2, "host's own"},
};
static_assert(sizeof(RigaPlanner) == 89 && fieldsCover(RigaPlannerFields, sizeof(RigaPlanner)));

/// One month of the yearly archive (file `wplanner`, January first).
struct MesePlanner {
    static constexpr std::size_t CellCount = 42; // six weeks of seven days

    FixedText<4> anno;
    FixedText<2> mese;
    FixedText<2> campo3;
    std::array<FixedText<1>, CellCount> segni;
    std::array<FixedText<44>, CellCount> testi;
    FixedText<2> campo6;
};

inline constexpr std::array MesePlannerFields{
    Field{"anno", 0, 4, "year"},
    Field{"mese", 4, 2, "month"},
    Field{"campo3", 6, 2, "host's own"},
    Field{"segni", 8, 42, "42 day marks of 1 character; \"*\" marks the day"},
    Field{"testi", 50, std::size_t{42} * 44, "42 texts of 44 characters: eleven 4-character numbers each"},
    Field{"campo6", 1898, 2, "host's own"},
};
static_assert(sizeof(MesePlanner) == 1900 && fieldsCover(MesePlannerFields, sizeof(MesePlanner)));

/// One staff member (file `wcollab`).
struct Collaboratore {
    FixedText<2> codice;
    FixedText<50> nome;
    FixedText<2> campo3;
    FixedText<2> campo4;
    FixedText<40> mansione;
    FixedText<25> campo6;
    FixedText<1> campo7;
    FixedText<1> campo8;
    FixedText<2> campo9;
};

inline constexpr std::array CollaboratoreFields{
    Field{"codice", 0, 2, "staff code"},    Field{"nome", 2, 50, "name"},
    Field{"campo3", 52, 2, "host's own"},   Field{"campo4", 54, 2, "host's own"},
    Field{"mansione", 56, 40, "job title"}, Field{"campo6", 96, 25, "host's own"},
    Field{"campo7", 121, 1, "host's own"},  Field{"campo8", 122, 1, "host's own"},
    Field{"campo9", 123, 2, "host's own"},
};
static_assert(sizeof(Collaboratore) == 125 && fieldsCover(CollaboratoreFields, sizeof(Collaboratore)));

/// Hours of one staff member on one day (file `wgrafici`).
struct RigaGrafico {
    FixedText<2> codice;
    FixedText<4> anno;
    FixedText<2> mese;
    FixedText<2> giorno;
    std::array<FixedText<7>, 5> ore;
    FixedText<2> campo10;
};

inline constexpr std::array RigaGraficoFields{
    Field{"codice", 0, 2, "staff code"},
    Field{"anno", 2, 4, "year"},
    Field{"mese", 6, 2, "month"},
    Field{"giorno", 8, 2, "day"},
    Field{"ore1", 10, 7, "hours worked: hours in the first five characters, minutes in the last two"},
    Field{"ore2", 17, 7, "second series"},
    Field{"ore3", 24, 7, "third series"},
    Field{"ore4", 31, 7, "fourth series"},
    Field{"ore5", 38, 7, "fifth series"},
    Field{"campo10", 45, 2, "host's own"},
};
static_assert(sizeof(RigaGrafico) == 47 && fieldsCover(RigaGraficoFields, sizeof(RigaGrafico)));

} // namespace planner
