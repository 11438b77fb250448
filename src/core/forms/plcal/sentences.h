// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "session/modpl.h"

#include <string>

namespace planner {

/// "mercoledì 15 marzo 2006", UTF-8.
std::string dataEstesa(Data data);

/// The same with the name of the fixed holiday that the day is: "lunedì 25 dicembre 2006, Natale".
std::string giornoInParole(Data data);

/// What the visible grid's period is called, UTF-8: "marzo 2006", "mercoledì 15 marzo 2006", "2006". Empty
/// without a grid.
std::string nomePeriodo(const ControlliPlcal& controlli);

/// What a place of the kind's grid is called, UTF-8. A cell: what it holds, "nessun impegno" for nothing. A
/// place in the header: the day, hour or weekday of its column. A name in column 0: the name, and the kinds
/// of the entries that stand beside it. The corner: the period. Empty in a grid that is not the visible one,
/// and outside its data.
std::string nomeCasella(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo,
                        Casella casella);

/// One sentence on a cell of the kind's grid, for tool tip, status line and screen reader alike, UTF-8: the
/// staff member, the day (and quarter of an hour), how many entries of each kind there are, and from when to
/// when an appointment lasts; in the yearly grid the day and its totals. Only the name where the cell stands
/// for no day, empty where it stands for nothing: in a grid that is not the visible one, and outside its
/// data. Looks into the archive: not for every cell of a large grid at once.
std::string fraseCella(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo,
                       Casella casella);

/// The part of the sentence that says what the cell holds; empty for a cell that holds nothing.
std::string dettagliCella(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo,
                          Casella casella);

/// What a cell holds, without numbers of the entries; empty for a cell that holds nothing.
std::string contenutoCella(const ControlliPlcal& controlli, const modpl& sessione, TipoPlanner tipo,
                           Casella casella);

/// When the quarter of an hour of a column of the daily grid, counted from 1, begins: "9:30".
std::string oraColonna(int colonna);

} // namespace planner
