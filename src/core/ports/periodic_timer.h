// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

namespace planner {

/// A timer that ticks every 500 ms while it is enabled.
class PeriodicTimer {
public:
    virtual ~PeriodicTimer() = default;
    virtual void setEnabled(bool enabled) = 0;
};

} // namespace planner
