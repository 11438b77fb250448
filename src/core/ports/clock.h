// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace planner {

/// Where "today" comes from.
class Clock {
public:
    virtual ~Clock() = default;
    /// The local calendar's day.
    virtual std::chrono::year_month_day today() const = 0;
};

} // namespace planner
