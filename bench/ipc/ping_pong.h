// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

namespace planner::bench {

// The two ends of a link between two processes. Each end is used in one process only.
class PingPong {
public:
    PingPong() = default;
    PingPong(const PingPong&) = delete;
    PingPong& operator=(const PingPong&) = delete;
    virtual ~PingPong() = default;

    // Called once in its process before the first round; throws std::runtime_error when it fails.
    virtual void openNear() {}
    virtual void openFar() {}
    virtual void closeNear() {}

    virtual void signalFar() = 0;
    virtual void waitNear() = 0;
    virtual void signalNear() = 0;
    virtual void waitFar() = 0;
};

// Where the two processes run.
enum class Placement { TwoProcessors, OneProcessor };

// Runs `rounds` round trips, the near end in this process and the far end in a child. Returns the
// mean microseconds of one. Throws std::runtime_error when an end fails.
double measureRoundTrip(PingPong& pair, int rounds, Placement placement);

// Whether this process may run on two processors at all.
bool hasTwoProcessors();

} // namespace planner::bench
