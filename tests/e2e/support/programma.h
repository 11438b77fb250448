// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "e2e/support/processo.h"

namespace planner::e2e {

/// The planner, started as a host starts it.
class Programma : public Processo {
public:
    Programma(const std::vector<std::string>& arguments, const Environment& environment,
              Errors errors = Errors::Shown);
    /// A planner that another program has started.
    explicit Programma(pid_t pid) : Processo(pid) {}

    /// The words of the command line that starts it with these arguments.
    static std::vector<std::string> commandLine(std::vector<std::string> arguments);

    /// True when the planner comes to do nothing, for that long, but look for its marker twice a second.
    bool comesToRest(std::chrono::milliseconds interval = std::chrono::seconds{1});
    /// True when the planner comes not to wake up at all for that long.
    bool comesToSleep(std::chrono::milliseconds interval = std::chrono::seconds{1});
    /// Waits until the program holds back the signals that would end it by themselves; false at the deadline.
    bool comesToHoldSignals() const;

private:
    long wakeUps() const;
    long processorTicks() const;
};

} // namespace planner::e2e
