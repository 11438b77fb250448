// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/modpl.h"

#include <optional>

namespace planner {

/// Moves of the shown date within a period. Each gives the new date, or nothing where the move would leave
/// the period. From a date outside the period a move may only come back to it.

/// One month back or forward; bounds are whole months. A day that the new month lacks becomes its last day.
std::optional<Data> moveMonth(Data mostrata, int mesi, const PeriodoSessione& periodo);

/// One year back or forward, only in a period that spans more than one year; otherwise like a month's move.
std::optional<Data> moveYear(Data mostrata, int anni, const PeriodoSessione& periodo);

/// One day back or forward; bounds are days.
std::optional<Data> moveDay(Data mostrata, int giorni, const PeriodoSessione& periodo);

/// The period from its first month's first day to its last month's last.
PeriodoSessione wholeMonths(const PeriodoSessione& periodo);
/// From 1 January to 31 December of the day's year.
PeriodoSessione wholeYear(Data data);

} // namespace planner
