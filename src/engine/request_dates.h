// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/session/modpl.h"
#include "platform/ports/message_boxes.h"

#include <string_view>

namespace planner {

/// The dates of a request, read and completed.
struct DateRichiesta {
    Data mostrata; // the incoming day, else the start date, else today
    Data inizio;   // else 1 January of the end date's year
    Data fine;     // else 31 December of the start date's year
};

/// Reads the three yyyymmdd texts of a request; "00000000" and blanks are no date. An impossible date is
/// said in a message box and counts as none, and so does an end before the start. Without start and end the
/// period is the shown day's year.
DateRichiesta readRequestDates(std::string_view giorno, std::string_view startdate, std::string_view enddate,
                               Data oggi, MessageBoxes& messaggi);

} // namespace planner
