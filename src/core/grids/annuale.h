// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/layout.h"
#include "session/calendario.h"
#include "session/modpl.h"

namespace planner {

inline constexpr int RigheAnnuale = 13; // header and twelve months

/// Lays out header, month names and day numbers of the year that the calendar shows. Until the session says
/// otherwise, moves in the grid do not move the calendar.
void showgrid3(modpl& sessione, const Calendario& calendario, Griglia& flxa);

/// Marks the days of the yearly table, and writes the year into the corner.
void PopolaGrid3(modpl& sessione, const Calendario& calendario, Griglia& flxa);

} // namespace planner
