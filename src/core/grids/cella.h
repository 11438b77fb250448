// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace planner {

/// What a cell of a grid is. What it looks like follows from it: see `style.h`.
enum class Ruolo : std::uint8_t {
    casella,         // a day, a quarter of an hour, or nothing
    nomeMensile,     // a staff member's name in the monthly grid
    nomeGiornaliero, // and in the daily one
    mese,            // a month's name in the yearly grid
    periodo,         // the corner of the monthly and daily grid
    anno,            // the corner of the yearly grid
    lettera,         // of a weekday, in a header
    numeroGiorno,    // in the monthly header
    giornoAnno,      // in the yearly grid
    ora,             // in the daily header
    minuti,          // of a quarter, beside it
};

/// One cell, small because a grid has up to three million of them. It holds what it means, never a colour.
struct Cella {
    std::uint32_t testo = 0; // place in the grid's text pool; 0 is the empty text
    Ruolo ruolo : 4 = Ruolo::casella;
    bool fineSettimana : 1 = false; // under a Saturday or a Sunday
    bool festivo : 1 = false;       // of a public holiday
    bool oggi : 1 = false;          // stands for today
    bool impegno : 1 = false;       // part of an appointment's span
    std::uint8_t immagine : 5 = 0;  // 1 to 16, 0 for none
    bool segnato : 1 = false;       // a day that the yearly table marks
    std::uint8_t tipi : 4 = 0;      // kinds of entries present: bit i stands for `TipiImpegno[i]`

    friend bool operator==(const Cella&, const Cella&) = default;
};
static_assert(sizeof(Cella) == 8);

} // namespace planner
