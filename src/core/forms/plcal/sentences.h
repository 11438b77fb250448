// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "session/modpl.h"

#include <string>

namespace planner {

/// "mercoledì 15 marzo 2006", UTF-8.
std::string dataEstesa(Data data);

/// One sentence on a cell of the kind's grid, for tool tip, status line and screen reader alike, UTF-8: the
/// staff member, the day (and quarter of an hour) and the kinds of entries present; in the yearly grid the
/// day and its totals. Only the name where the cell stands for no day, empty where it stands for nothing: in
/// a grid that is not the visible one, and outside its data.
std::string fraseCella(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo,
                       Casella casella);

/// The same on a name in column 0: the name, and the kinds of the entries that stand beside it.
std::string fraseNome(const ControlliPlcal& controlli, TipoPlanner tipo, int riga);

/// What of the sentence on a cell says what it holds; empty for a cell that holds nothing.
std::string contenutoCella(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo,
                           Casella casella);

/// When the quarter of an hour of a column of the daily grid, counted from 1, begins: "9:30".
std::string oraColonna(int colonna);

} // namespace planner
