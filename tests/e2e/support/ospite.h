// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <future>
#include <string>

namespace planner::e2e {

/// The host's side of an event.
class Ospite {
public:
    Ospite(std::string evento, std::string transitPath);

    /// The name of the file, in the user's folder of events, in which the event lives.
    std::string eventFile() const { return "ev-" + m_evento; }

    /// Waits for the event from now on, in a thread of its own.
    void startWaiting();
    /// True when that wait has returned.
    bool isTold() const;
    /// The transit file as it was at the very moment at which the wait returned; starts the wait if need be,
    /// and throws at the deadline.
    std::string answer();

    /// Tells the planner that there is a request; false when there is no planner to tell.
    bool signal() const;

private:
    std::string m_evento;
    std::string m_transitPath;
    std::future<std::string> m_answer;
};

} // namespace planner::e2e
