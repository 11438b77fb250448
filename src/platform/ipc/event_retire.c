// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_retire.h"

#include "futex.h"

bool isRetired(const EventObject* event) {
    const EventState* state = wholeState(event);
    return state == NULL || atomic_load(&state->toHost) == SIGNAL_RETIRED;
}

// A signal that has not been taken yet stays as the last one; true when there is one.
static bool closeDirection(_Atomic uint32_t* direction) {
    uint32_t before = atomic_load(direction);
    uint32_t after;
    do {
        after = before == SIGNAL_PENDING || before == SIGNAL_LAST ? SIGNAL_LAST : SIGNAL_RETIRED;
    } while (!atomic_compare_exchange_weak(direction, &before, after));
    return after == SIGNAL_LAST;
}

static void wakeBothSides(EventState* state) {
    futexWakeAll(&state->toHost);
    futexWakeAll(&state->toCreator);
}

void freeName(int folder, const char* file, const EventObject* event) {
    if (standsIn(folder, file, event)) {
        unlinkat(folder, file, 0);
    }
}

void retireEvent(int folder, const char* file, const EventObject* event) {
    EventState* state = wholeState(event);
    if (state != NULL) {
        // A dead creator's; that of one that has removed the event is SIGNAL_LAST, and may still be taken.
        uint32_t orphan = SIGNAL_PENDING;
        atomic_compare_exchange_strong(&state->toCreator, &orphan, SIGNAL_RETIRED);
        closeDirection(&state->toCreator);
        atomic_store(&state->toHost, SIGNAL_RETIRED);
        wakeBothSides(state);
    }
    freeName(folder, file, event);
}

void retireAsCreator(int folder, const char* file, const EventObject* event) {
    EventState* state = wholeState(event);
    bool kept = false;
    if (state != NULL) {
        // In this order: who sees that the other direction is out of use knows whether its signal was taken.
        closeDirection(&state->toCreator);
        kept = closeDirection(&state->toHost);
        wakeBothSides(state);
    }
    if (!kept) {
        freeName(folder, file, event);
    }
}
