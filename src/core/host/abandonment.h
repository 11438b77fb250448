// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/event_conversation.h"
#include "ports/periodic_timer.h"

namespace planner {

/// Notices that nobody is left to ask the planner anything: the process that started it is gone, and so is
/// every process that has used the event from the other side.
class Abandonment {
public:
    Abandonment(const EventConversation& conversazione, const HostIpc& ipc, PeriodicTimer& timer)
        : m_conversazione(conversazione), m_ipc(ipc), m_timer(timer) {}

    /// The process that started the planner is gone. One that went before the first answer was taken was a
    /// launcher, and says nothing; otherwise the timer starts ticking.
    void starterGone();

    /// One tick of the timer; true when the planner has waited ten seconds without any host alive.
    bool tick();

private:
    const EventConversation& m_conversazione;
    const HostIpc& m_ipc;
    PeriodicTimer& m_timer;
    int m_deserted = 0; // ticks without a break
};

} // namespace planner
