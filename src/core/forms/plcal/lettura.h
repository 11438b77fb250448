// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "session/modpl.h"

#include <string>

namespace planner {

/// The totals of a row of the visible grid in its period, UTF-8: "12 scadenze (3 concluse), 1 pratica",
/// "nessun impegno". In the yearly grid those of the whole year.
std::string totaliRiga(const ControlliPlcal& controlli, const modpl& sessione, int riga);

/// What there is to say of the current cell, as one sentence on the status line, UTF-8: the cell's own, the
/// totals of the period, and what comes next in the row. Empty without a grid.
std::string fraseLettura(const ControlliPlcal& controlli, const modpl& sessione);

} // namespace planner
