// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/accessibilita.h"
#include "e2e/support/archivio.h"

namespace planner::e2e {

/// A cell that a scenario picks, and what the planner must make of it: worked out from the archive's bytes.
struct Casella {
    Accessibilita::Cella cella;
    std::string giorno;   // yyyymmdd
    std::string codice;   // of the staff member; two blanks for none
    std::string scadenze; // the name of the deadlines' total once the cell is picked
};

/// A cell of the monthly planner that stands for deadlines, in month 1 to 12 of 2006, within the first rows.
/// Throws when there is none.
Casella casellaConScadenze(const Archivio& archivio, int mese);

/// The cell of a day without anything in the yearly planner, in month 1 to 12 of 2006. Throws when there is
/// none.
Casella giornoVuoto(const Archivio& archivio, int mese);

} // namespace planner::e2e
