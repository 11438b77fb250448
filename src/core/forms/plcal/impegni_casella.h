// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "grids/giornaliera.h"
#include "session/modpl.h"

#include <string>
#include <vector>

namespace planner {

/// What one appointment brings to a cell.
struct ImpegnoCasella {
    ValoriContatori valori;
    IntervalloColonne colonne; // of the daily grid
};

/// The appointments of a cell of the monthly grid (its staff member's day) or of the daily one (those that
/// cover its quarter), in the order of the archive, read from it at each call. Empty for a cell that shows
/// none, and for the yearly grid.
std::vector<ImpegnoCasella> impegniCasella(const ControlliPlcal& controlli, const modpl& sessione,
                                           TipoPlanner tipo, Casella casella);

/// "2 scadenze", "1 scadenza"; only the plural for a number that rounds to 0.
std::string quanti(double numero, std::string_view singolare, std::string_view plurale);

/// How many of each kind, in the order in which sentences name them: "2 scadenze, 1 pratica".
std::string quantiPerTipo(const ValoriContatori& valori);

} // namespace planner
