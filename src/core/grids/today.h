// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/griglia.h"
#include "session/calendario.h"

namespace planner {

/// Marks today in a grid that is laid out for the date of the calendar, and unmarks every other day: in the
/// monthly grid the day's header cells, in the daily grid the date in the corner, in the yearly grid the day.
void markTodayMonthly(Griglia& Flxm, const Calendario& calendario, Data oggi);
void markTodayDaily(Griglia& flxg, const Calendario& calendario, Data oggi);
void markTodayYearly(Griglia& flxa, const Calendario& calendario, Data oggi);

} // namespace planner
