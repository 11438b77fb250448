// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_signal.h"

#include "event_lock.h"
#include "futex.h"

#include <errno.h>

static bool isOutOfUse(uint32_t direction) {
    return direction == SIGNAL_RETIRED || direction == SIGNAL_LAST;
}

// False when the direction is out of use. Whatever else stands there counts as none. Not only one
// sleeper is woken: if that one were killed, the others would sleep beside the signal.
static bool signalDirection(_Atomic uint32_t* direction) {
    uint32_t before = SIGNAL_NONE;
    while (!atomic_compare_exchange_weak(direction, &before, SIGNAL_PENDING)) {
        if (before == SIGNAL_PENDING || isOutOfUse(before)) {
            return before == SIGNAL_PENDING;
        }
    }
    futexWakeAll(direction);
    return true;
}

int signalAsCreator(const EventObject* event) {
    EventState* state = wholeState(event);
    return state != NULL && signalDirection(&state->toHost) ? 0 : EIDRM;
}

int signalAsHost(const EventObject* event) {
    EventState* state = hasOtherCreator(event->descriptor) ? wholeState(event) : NULL;
    return state != NULL && signalDirection(&state->toCreator) ? 0 : ESRCH;
}
