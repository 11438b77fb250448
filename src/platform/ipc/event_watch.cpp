// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/ipc/event_watch.h"

#include "platform/ipc/event_peek.h"

#include <unistd.h>

namespace planner {

EventWatch::EventWatch(const std::string& nome) : m_event(openToPeek(nome.c_str())) {}

EventWatch::~EventWatch() {
    if (m_event >= 0) {
        ::close(m_event);
    }
}

bool EventWatch::lastSignalTaken() const {
    return isSignalToHostTaken(m_event);
}

bool EventWatch::otherSideAlive() const {
    return isHostAlive(m_event);
}

} // namespace planner
