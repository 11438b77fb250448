// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_signal.h"

#include "futex.h"

bool signalDirection(_Atomic uint32_t* direction) {
    uint32_t before = SIGNAL_NONE;
    if (!atomic_compare_exchange_strong(direction, &before, SIGNAL_PENDING)) {
        return before == SIGNAL_PENDING;
    }
    futexWakeAll(direction);
    return true;
}

static bool take(_Atomic uint32_t* direction, uint32_t signal, uint32_t after) {
    return atomic_compare_exchange_strong(direction, &signal, after);
}

int waitAsCreator(const EventObject* event) {
    _Atomic uint32_t* direction = &event->state->toCreator;
    while (!take(direction, SIGNAL_PENDING, SIGNAL_NONE)) {
        if (atomic_load(direction) == SIGNAL_RETIRED) {
            return WAIT_RETIRED;
        }
        const int error = futexWait(direction, SIGNAL_NONE);
        if (error != 0) {
            return error;
        }
    }
    return 0;
}

static bool takeLast(const EventObject* event, uint64_t token) {
    return atomic_load(&event->state->author) != token &&
           take(&event->state->toHost, SIGNAL_LAST, SIGNAL_RETIRED);
}

int waitAsHost(const EventObject* event, uint64_t token) {
    _Atomic uint32_t* direction = &event->state->toHost;
    while (!take(direction, SIGNAL_PENDING, SIGNAL_NONE)) {
        if (takeLast(event, token)) {
            return WAIT_TAKEN_LAST;
        }
        const uint32_t seen = atomic_load(direction);
        if (seen == SIGNAL_RETIRED) {
            return WAIT_RETIRED;
        }
        // Seen as the last one here, a signal is this process's own: it sleeps until another takes it.
        const bool own = seen == SIGNAL_LAST && atomic_load(&event->state->author) == token;
        const int error = seen == SIGNAL_NONE || own ? futexWait(direction, seen) : 0;
        if (error != 0) {
            return error;
        }
    }
    return 0;
}
