// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/tables.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace planner {

/// A total of the yearly panel: which of the day's eleven numbers (0 to 10) add up in it.
struct CampoAnnuale {
    std::string_view etichetta;        // the panel's label
    std::string_view nome;             // in a sentence
    std::array<std::int8_t, 2> numeri; // -1 for none
};

inline constexpr std::array CampiAnnuali{CampoAnnuale{"scad", "scadenze", {0, 4}},
                                         CampoAnnuale{"scaev", "scadenze concluse", {2, 8}},
                                         CampoAnnuale{"prat", "pratiche", {1, 5}},
                                         CampoAnnuale{"praev", "pratiche concluse", {3, 9}},
                                         CampoAnnuale{"nriv", "note riservate", {7, -1}},
                                         CampoAnnuale{"bnot", "block notes", {6, -1}},
                                         CampoAnnuale{"blkev", "block notes conclusi", {10, -1}}};

struct TotaleGiorno {
    const CampoAnnuale* campo;
    double valore;
};

/// True when the yearly table marks the day in the given row (month 1 to 12) and column (cell 1 to 42) of the
/// yearly grid. Throws SubscriptError outside the table.
bool giornoSegnato(const Archivi& archivi, int riga, int colonna);

/// The totals of that day, all 0 for an unmarked one. Throws SubscriptError outside the table.
std::array<TotaleGiorno, CampiAnnuali.size()> totaliGiorno(const Archivi& archivi, int riga, int colonna);

} // namespace planner
