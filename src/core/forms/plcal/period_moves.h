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

/// True when the month of the day, respectively the day, belongs to the period.
bool monthInPeriod(Data data, const PeriodoSessione& periodo);
bool dayInPeriod(Data data, const PeriodoSessione& periodo);

/// The first and the last day of the day's month.
Data firstOfMonth(Data data);
Data lastOfMonth(Data data);

} // namespace planner
