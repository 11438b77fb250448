// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/tables.h"
#include "grids/griglia.h"
#include "session/totals.h"

namespace planner {

/// True when the yearly table marks the day in the given row (month 1 to 12) and column (cell 1 to 42) of the
/// yearly grid. Throws SubscriptError outside the table.
bool giornoSegnato(const Archivi& archivi, Casella casella);

/// The eleven numbers of that day as counters, all 0 for an unmarked one. Throws SubscriptError outside the
/// table.
ValoriContatori valoriGiorno(const Archivi& archivi, Casella casella);

} // namespace planner
