// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/clock.h"

namespace planner {

/// Today in the local time zone.
class SystemClock : public Clock {
public:
    std::chrono::year_month_day today() const override;
};

} // namespace planner
