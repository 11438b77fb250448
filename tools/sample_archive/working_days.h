// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/dates.h"

#include <vector>

namespace planner {

/// A day on which the office is open.
struct GiornoLavorativo {
    Data data;
    int pressione; // 0 to 100: how near and how heavy the next tax deadline is
};

/// The year's days, Saturdays, Sundays and fixed public holidays left out, in order.
std::vector<GiornoLavorativo> giorniLavorativi(int anno);

} // namespace planner
