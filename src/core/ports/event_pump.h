// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace planner {

/// The user interface's event processing.
class EventPump {
public:
    virtual ~EventPump() = default;
    /// Sleeps until at least one event has come, and processes what has come.
    virtual void waitAndProcess() = 0;
    /// Processes what comes within this time, and returns when it is over.
    virtual void processFor(std::chrono::milliseconds time) = 0;
    /// Ends a waitAndProcess() under way, or the next one. The only operation that any thread may call.
    virtual void wakeUp() = 0;
    /// Processes what is pending and hands all drawing to the screen, so that the caller may then block.
    virtual void flush() = 0;
};

} // namespace planner
