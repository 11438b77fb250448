// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/processo.h"

namespace planner::e2e {

/// The planner, started as a host starts it.
class Programma : public Processo {
public:
    Programma(const std::vector<std::string>& arguments, const Environment& environment);

    /// True when the planner comes to do nothing, for that long, but look for its marker twice a second.
    bool comesToRest(std::chrono::milliseconds interval = std::chrono::seconds{1});
    /// True when the planner comes to use no processor time at all for that long.
    bool comesToSleep(std::chrono::milliseconds interval = std::chrono::seconds{1});

private:
    long wakeUps() const;
    long processorTicks() const;
};

} // namespace planner::e2e
