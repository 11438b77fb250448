// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_wait.h"

#include "event_lock.h"
#include "futex.h"

#include <errno.h>

// Inside of this file only: the wait goes on.
enum { WAIT_GOES_ON = -3 };

// How often a host looks whether the creator that it has met still lives: the kernel wakes nobody when a
// record lock goes.
static const struct timespec LIFE_CHECK = {.tv_nsec = 400L * 1000 * 1000};

static bool take(_Atomic uint32_t* direction, uint32_t signal, uint32_t after) {
    return atomic_compare_exchange_strong(direction, &signal, after);
}

// Wakes the others that sleep beside it, which find the event out of use.
static bool takeLast(_Atomic uint32_t* direction) {
    const bool taken = take(direction, SIGNAL_LAST, SIGNAL_RETIRED);
    if (taken) {
        futexWakeAll(direction);
    }
    return taken;
}

// What stands there is none of the known values: never slept on, never spun on.
static int reset(_Atomic uint32_t* direction, uint32_t seen) {
    take(direction, seen, SIGNAL_NONE);
    return WAIT_GOES_ON;
}

static int lookAsCreator(const EventObject* event) {
    EventState* state = wholeState(event);
    if (state == NULL) {
        return EIDRM;
    }
    _Atomic uint32_t* direction = &state->toCreator;
    if (take(direction, SIGNAL_PENDING, SIGNAL_NONE) || takeLast(direction)) {
        return 0;
    }
    const uint32_t seen = atomic_load(direction);
    if (seen == SIGNAL_RETIRED) {
        return ECANCELED;
    }
    const bool known = seen == SIGNAL_NONE || seen == SIGNAL_PENDING || seen == SIGNAL_LAST;
    return known ? WAIT_GOES_ON : reset(direction, seen);
}

// Looks before it sleeps: nothing would wake it from an event that is cut short.
int waitAsCreator(const EventObject* event) {
    int result = lookAsCreator(event);
    while (result == WAIT_GOES_ON) {
        const int error = futexWait(&event->state->toCreator, SIGNAL_NONE, NULL);
        result = error == 0 || error == EFAULT ? lookAsCreator(event) : error;
    }
    return result;
}

static int sleepAsHost(const EventObject* event, uint32_t seen, const struct timespec* timeout) {
    const int error = futexWait(&event->state->toHost, seen, timeout);
    if (error == EFAULT) {
        return WAIT_LOOK_AGAIN;
    }
    return error == 0 || error == ETIMEDOUT ? WAIT_GOES_ON : error;
}

static bool isOwn(const EventState* state, uint64_t token) {
    return atomic_load(&state->author) == token;
}

// No signal is there. A creator announces itself after it has its lock: who says that nobody has come, and
// only then asks for the lock, misses none.
static int restAsHost(const EventObject* event, uint32_t seen, bool* met) {
    _Atomic uint32_t* direction = &event->state->toHost;
    if (hasOtherCreator(event->descriptor)) {
        *met = true;
        return sleepAsHost(event, seen, &LIFE_CHECK);
    }
    if (*met) {
        // It may have signalled or removed the event before it went.
        *met = atomic_load(direction) != seen;
        return *met ? WAIT_GOES_ON : EOWNERDEAD;
    }
    if (seen == SIGNAL_NONE) {
        take(direction, SIGNAL_NONE, SIGNAL_VACANT);
        return WAIT_GOES_ON;
    }
    return sleepAsHost(event, SIGNAL_VACANT, NULL);
}

// The event is out of use. The creator's own wait may still take what a host had signalled; where it does
// not, the host takes it back, for nobody will answer.
static int leaveAsHost(const EventObject* event, bool* met) {
    _Atomic uint32_t* toCreator = &event->state->toCreator;
    if (*met) {
        futexWait(toCreator, SIGNAL_LAST, &LIFE_CHECK); // sleeps beside such a signal alone
        if (wholeState(event) != NULL && takeLast(toCreator)) {
            *met = false;
            return EOWNERDEAD;
        }
    }
    return WAIT_LOOK_AGAIN;
}

static int actAsHost(const EventObject* event, uint32_t seen, bool own, bool* met) {
    switch (seen) {
    case SIGNAL_NONE:
    case SIGNAL_VACANT:
        return restAsHost(event, seen, met);
    case SIGNAL_RETIRED:
        return leaveAsHost(event, met);
    case SIGNAL_PENDING: // it came just now, and lets nobody sleep
    case SIGNAL_LAST:
        // This process's own one sleeps until another takes it.
        return own ? sleepAsHost(event, SIGNAL_LAST, NULL) : WAIT_GOES_ON;
    default:
        return reset(&event->state->toHost, seen);
    }
}

static int lookAsHost(const EventObject* event, uint64_t token, bool* met) {
    EventState* state = wholeState(event);
    if (state == NULL) {
        return WAIT_LOOK_AGAIN;
    }
    if (take(&state->toHost, SIGNAL_PENDING, SIGNAL_NONE)) {
        *met = true;
        return 0;
    }
    const bool own = isOwn(state, token);
    if (!own && takeLast(&state->toHost)) {
        return WAIT_TAKEN_LAST;
    }
    return actAsHost(event, atomic_load(&state->toHost), own, met);
}

// Who has met a creator sleeps before it looks: where a signal is there already the system does not let it
// sleep, and in the usual case that saves a call.
int waitAsHost(const EventObject* event, uint64_t token, bool* met) {
    int result = *met ? sleepAsHost(event, SIGNAL_NONE, &LIFE_CHECK) : WAIT_GOES_ON;
    while (result == WAIT_GOES_ON) {
        result = lookAsHost(event, token, met);
    }
    return result;
}
