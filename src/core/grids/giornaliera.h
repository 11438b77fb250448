// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/layout.h"
#include "session/calendario.h"
#include "session/modpl.h"

namespace planner {

/// First staff row of the daily grid.
inline constexpr int PrimaRigaGiornaliera = 1;

/// Lays out the header: one column per quarter of an hour.
void showgrid2(Griglia& flxg);

/// Writes captions, totals and appointments of the day that the calendar shows. An appointment fills the
/// columns of its quarters; one without a start hour has its picture beside the name. Records that raise a
/// run-time error are left out and counted.
EsitoRiempimento PopolaGrid2(modpl& sessione, const Calendario& calendario, Griglia& flxg, bool dettagliato);

/// Orders a row's bars from left to right and gives each a lane: bars that overlap, directly or through
/// others, share the row's height, and no two in one lane touch the same column.
void assegnaCorsie(std::vector<FasciaImpegno>& fasce);

/// Columns of the daily grid, bounds included.
struct IntervalloColonne {
    int prima, ultima;
};

/// The columns that an appointment covers, within 1 to 96; column 0 alone when it has no valid start hour.
/// Throws OverflowError when its length does not fit 16 bits.
IntervalloColonne colonneImpegno(const RigaPlanner& riga);

} // namespace planner
