// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace planner {

/// Looks at an event of this process's own, from beside its waits. To be made after the event has been
/// created and to live until it has been removed: its end drops the locks that make this process the creator.
class EventWatch {
public:
    explicit EventWatch(const std::string& nome);
    ~EventWatch();
    EventWatch(const EventWatch&) = delete;
    EventWatch& operator=(const EventWatch&) = delete;

    /// False while a signal of this side waits to be taken; true also when that cannot be told.
    bool lastSignalTaken() const;
    /// False when no process lives that used this event from the other side; true also when that cannot be
    /// told.
    bool otherSideAlive() const;

private:
    int m_event; // -1 when it cannot be looked at
};

} // namespace planner
