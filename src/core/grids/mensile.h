// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/layout.h"
#include "session/calendario.h"
#include "session/modpl.h"

namespace planner {

/// First staff row of the monthly grid.
inline constexpr int PrimaRigaMensile = 2;

/// Lays out the header of the month that the calendar shows.
void showgrid(modpl& sessione, const Calendario& calendario, Griglia& Flxm);

/// Writes captions, totals and the days' pictures of the month that the calendar shows. Records that raise a
/// run-time error are left out and counted.
EsitoRiempimento PopolaGrid1(modpl& sessione, const Calendario& calendario, Griglia& Flxm, bool dettagliato);

/// The first column of the header whose day number is exactly 1. Throws SubscriptError when it has none.
int columnOfFirstDay(const Griglia& Flxm);

} // namespace planner
