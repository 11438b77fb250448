// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_wait.h"

#include <errno.h>

// Inside of this file only: the wait goes on.
enum { WAIT_GOES_ON = -2 };

// How often a host looks whether a creator has come or died, in milliseconds: the system wakes nobody for
// that.
enum { LIFE_CHECK = 400 };

// Of the two the first that is set, 1 for the second; WAIT_TIMEOUT, or anything else that the system says.
static DWORD waitForFirst(HANDLE first, HANDLE second, DWORD limit) {
    const HANDLE both[] = {first, second};
    return WaitForMultipleObjects(2, both, FALSE, limit);
}

int waitAsCreator(EventHandle* handle) {
    switch (waitForFirst(handle->objects.toCreator, handle->retired, INFINITE)) {
    case WAIT_OBJECT_0:
        return 0;
    case WAIT_OBJECT_0 + 1:
        return ECANCELED;
    default:
        return EIDRM;
    }
}

typedef enum { CREATOR_ALIVE, CREATOR_DEAD, NO_CREATOR } Sight;

static Sight lookForCreator(EventHandle* handle) {
    if (lockObjects(&handle->objects) != 0) {
        return CREATOR_ALIVE; // another process is at it
    }
    const bool alive = hasCreator(handle->name);
    const bool removed = isSet(handle->objects.removed);
    unlockObjects(&handle->objects);
    return alive ? CREATOR_ALIVE : removed ? NO_CREATOR : CREATOR_DEAD;
}

// What a creator that has gone left behind comes before the news of its death. Where there was none at the
// last look, one has come and died since.
static int lookAsHost(EventHandle* handle, Sight* last) {
    const Sight sight = lookForCreator(handle);
    const bool cameAndDied = *last == NO_CREATOR && sight == CREATOR_DEAD;
    *last = sight;
    if (cameAndDied) {
        handle->met = true;
    }
    if (sight == CREATOR_ALIVE) {
        handle->met = true;
        handle->author = false;
        return WAIT_GOES_ON;
    }
    if (handle->author || !handle->met) {
        return WAIT_GOES_ON;
    }
    if (take(handle->objects.toHost)) {
        return 0;
    }
    // A signal that the creator left when it removed the event is taken back, for nobody will answer.
    return sight == CREATOR_DEAD || take(handle->objects.toCreator) ? EOWNERDEAD : WAIT_GOES_ON;
}

static int sleepAsHost(EventHandle* handle) {
    if (handle->author) { // the signal is this process's own
        return WaitForSingleObject(handle->retired, LIFE_CHECK) == WAIT_OBJECT_0 ? WAIT_LOOK_AGAIN
                                                                                 : WAIT_GOES_ON;
    }
    switch (waitForFirst(handle->retired, handle->objects.toHost, LIFE_CHECK)) {
    case WAIT_OBJECT_0:
        return WAIT_LOOK_AGAIN;
    case WAIT_OBJECT_0 + 1:
        handle->met = true;
        return 0;
    case WAIT_TIMEOUT:
        return WAIT_GOES_ON;
    default:
        return EIDRM;
    }
}

int waitAsHost(EventHandle* handle) {
    Sight last = CREATOR_ALIVE;
    int result = lookAsHost(handle, &last);
    while (result == WAIT_GOES_ON) {
        result = sleepAsHost(handle);
        if (result == WAIT_GOES_ON) {
            result = lookAsHost(handle, &last);
        }
    }
    return result;
}
