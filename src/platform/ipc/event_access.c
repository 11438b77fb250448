// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_access.h"

#include "event_folder.h"
#include "event_refusal.h"
#include "futex.h"

#include <errno.h>
#include <unistd.h>

static bool isRetired(const EventObject* event) {
    return atomic_load(&event->state->toHost) == SIGNAL_RETIRED;
}

// Clears the name `file` of what is no event: the folder is ours alone. A folder in there stays.
static int clearName(int folder, const char* file) {
    return unlinkat(folder, file, 0) == 0 || errno == ENOENT ? 0 : errno;
}

// Puts a new event in the place of what openEvent() found in `file` with `result`; `event` is that when
// it was opened, and is closed.
static int replaceEvent(int folder, const char* file, int result, EventObject* event) {
    if (result == 0) {
        retireEvent(folder, file, event);
        closeEvent(event);
    } else {
        const int error = clearName(folder, file);
        if (error != 0) {
            return error;
        }
    }
    return makeEvent(folder, file, event);
}

// Whether openEvent() could not tell what stands there.
static bool isTrouble(int result) {
    return result != 0 && result != ENOENT && result != EVENT_FOREIGN;
}

// A process that waited as a host and now creates is the creator for all its threads: those that
// still wait must look again, or they would take the signals of their own side.
static bool dropHostHandle(int folder, const char* file) {
    EventHandle* handle = findHandle(file);
    if (handle == NULL) {
        return false;
    }
    retireEvent(folder, file, &handle->object);
    dropHandle(handle);
    return true;
}

// An event without a living creator is taken over as it is, so that the hosts which sleep on it
// need not be woken; a removed one is replaced, for its last signal belongs to its author.
static int takeOver(int folder, const char* file, EventObject* event) {
    const uint32_t toHost = atomic_load(&event->state->toHost);
    if (dropHostHandle(folder, file) || toHost == SIGNAL_RETIRED || toHost == SIGNAL_LAST) {
        return replaceEvent(folder, file, 0, event);
    }
    atomic_store(&event->state->toHost, SIGNAL_NONE);
    atomic_store(&event->state->toCreator, SIGNAL_NONE);
    return 0;
}

static int openToCreate(int folder, const char* file, EventObject* event) {
    const int result = openEvent(folder, file, event);
    if (isTrouble(result)) {
        return result;
    }
    if (result != 0) {
        dropHostHandle(folder, file);
        return replaceEvent(folder, file, result, event);
    }
    if (hasOtherCreator(event)) {
        closeEvent(event);
        return EADDRINUSE;
    }
    return takeOver(folder, file, event);
}

static int createIn(int folder, const char* file) {
    EventObject event;
    int error = openToCreate(folder, file, &event);
    if (error != 0) {
        return error;
    }
    atomic_store(&event.state->author, processToken());
    error = claimEvent(&event);
    if (error != 0) {
        closeEvent(&event);
        return error;
    }
    return addHandle(file, event, true) == NULL ? ENOMEM : 0;
}

static int createNew(const char* file) {
    const int folder = lockEventFolder();
    const int error = folder < 0 ? -folder : createIn(folder, file);
    unlockEventFolder(folder);
    return error;
}

// Told by what this process has open: opening the event once more and closing it would drop this process's
// locks on it.
static bool isOwnedElsewhere(const EventHandle* handle) {
    return handle != NULL && !isRetired(&handle->object) && hasOtherCreator(&handle->object);
}

int createOwn(const char* file) {
    const EventHandle* handle = findHandle(file);
    if (handle != NULL && handle->creator) {
        return 0;
    }
    const int error = isOwnedElsewhere(handle) ? EADDRINUSE : createNew(file);
    if (error == 0) {
        forgetRefusal(file);
    } else {
        rememberRefusal(file, error);
    }
    return error;
}

// True when a signal stays for the host.
static bool closeToHost(_Atomic uint32_t* toHost) {
    uint32_t before = atomic_load(toHost);
    uint32_t after;
    do {
        after = before == SIGNAL_PENDING ? SIGNAL_LAST : SIGNAL_RETIRED;
    } while (!atomic_compare_exchange_weak(toHost, &before, after));
    return after == SIGNAL_LAST;
}

int removeOwn(const char* file) {
    forgetRefusal(file);
    EventHandle* handle = findHandle(file);
    if (handle == NULL || !handle->creator) {
        return EPERM;
    }
    // Without the folder the event still ends; the mark in it makes the next opener clear the name.
    const int folder = lockEventFolder();
    const EventObject* event = &handle->object;
    if (closeToHost(&event->state->toHost)) {
        atomic_store(&event->state->toCreator, SIGNAL_RETIRED);
        futexWakeAll(&event->state->toCreator);
    } else {
        retireEvent(folder, file, event);
    }
    unclaimEvent(event);
    dropHandle(handle);
    unlockEventFolder(folder);
    return 0;
}

// A signal whose creator died before this process came is no longer anybody's.
static void forgetOrphanSignal(const EventObject* event) {
    uint32_t pending = SIGNAL_PENDING;
    if (atomic_load(&event->state->toHost) == SIGNAL_PENDING && !hasOtherCreator(event)) {
        atomic_compare_exchange_strong(&event->state->toHost, &pending, SIGNAL_NONE);
    }
}

static int openAsHost(int folder, const char* file, EventObject* event) {
    const int result = openEvent(folder, file, event);
    if (result == 0 && isRetired(event)) {
        closeEvent(event);
        return ENOENT;
    }
    if (result == 0) {
        forgetOrphanSignal(event);
    }
    return result;
}

static int openToSignal(int folder, const char* file, EventObject* event) {
    const int result = openAsHost(folder, file, event);
    return isTrouble(result) || result == 0 ? result : ESRCH;
}

static int openToWait(int folder, const char* file, EventObject* event) {
    const int result = openAsHost(folder, file, event);
    return isTrouble(result) || result == 0 ? result : replaceEvent(folder, file, result, event);
}

typedef int (*OpenFunction)(int folder, const char* file, EventObject* event);

static int openNew(const char* file, OpenFunction openEventOf, EventHandle** handle) {
    EventObject event;
    const int folder = lockEventFolder();
    int error = folder < 0 ? -folder : openEventOf(folder, file, &event);
    if (error == 0) {
        *handle = addHandle(file, event, false);
        error = *handle == NULL ? ENOMEM : 0;
    }
    unlockEventFolder(folder);
    return error;
}

static int findOrOpen(const char* file, OpenFunction openEventOf, EventHandle** handle) {
    const int refused = refusalOf(file);
    if (refused != 0) {
        return refused;
    }
    *handle = findHandle(file);
    if (*handle != NULL && isRetired(&(*handle)->object)) {
        dropHandle(*handle);
        *handle = NULL;
    }
    return *handle != NULL ? 0 : openNew(file, openEventOf, handle);
}

int accessToSignal(const char* file, EventHandle** handle) {
    return findOrOpen(file, openToSignal, handle);
}

int accessToWait(const char* file, EventHandle** handle) {
    return findOrOpen(file, openToWait, handle);
}

void finishLast(EventHandle* handle) {
    const int folder = lockEventFolder();
    retireEvent(folder, handle->file, &handle->object);
    unlockEventFolder(folder);
    dropHandle(handle);
}
