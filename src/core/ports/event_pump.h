// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

namespace planner {

/// The user interface's event processing.
class EventPump {
public:
    virtual ~EventPump() = default;
    /// Sleeps until at least one event has come, and processes what has come.
    virtual void waitAndProcess() = 0;
    /// Processes what is pending and hands all drawing to the screen, so that the caller may then block.
    virtual void flush() = 0;
};

} // namespace planner
