// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/kinds/kind.h"

#include <optional>
#include <string>
#include <string_view>

namespace planner {

/// The three yyyymmdd texts of a request.
struct DateInArrivo {
    std::string_view giorno; // the day to show
    std::string_view startdate;
    std::string_view enddate;
};

/// The dates of a request, read and completed.
struct DateRichiesta {
    Data mostrata;           // the incoming day, else the start, else today
    PeriodoSessione periodo; // from 1 January of the end's year, to 31 December of the start's, where missing
    std::string guaio;       // what makes no sense in them, to be said to the user; empty for nothing
};

/// Reads the dates of a request; a text of blanks and zeros is no date. Impossible dates count as none, and
/// so does an end before the start: one text says it of all of them. Without start and end the period is the
/// shown day's year. The yearly planner shows the day in the year of the start. For an unknown kind, which
/// shows no day, nothing is to be said.
DateRichiesta readRequestDates(std::optional<TipoPlanner> tipo, const DateInArrivo& testi, Data oggi);

} // namespace planner
