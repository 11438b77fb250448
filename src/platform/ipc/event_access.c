// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_access.h"

#include "event_folder.h"
#include "futex.h"

static bool isRetired(const EventObject* event) {
    return atomic_load(&event->state->toHost) == SIGNAL_RETIRED;
}

// Puts a new event in the place of whatever stands in `file`; `event` is that when it is `opened`,
// and is closed. What is no event goes as well: the folder is ours alone. A folder in there stays,
// and makes the call fail.
static bool replaceEvent(int folder, const char* file, bool opened, EventObject* event) {
    if (opened) {
        retireEvent(folder, file, event);
        closeEvent(event);
    } else {
        unlinkat(folder, file, 0);
    }
    return makeEvent(folder, file, event);
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
static bool takeOver(int folder, const char* file, EventObject* event) {
    const uint32_t toHost = atomic_load(&event->state->toHost);
    if (dropHostHandle(folder, file) || toHost == SIGNAL_RETIRED || toHost == SIGNAL_LAST) {
        return replaceEvent(folder, file, true, event);
    }
    atomic_store(&event->state->toHost, SIGNAL_NONE);
    atomic_store(&event->state->toCreator, SIGNAL_NONE);
    return true;
}

static bool openToCreate(int folder, const char* file, EventObject* event) {
    const OpenResult result = openEvent(folder, file, event);
    if (result == EVENT_FAILED) {
        return false;
    }
    if (result != EVENT_OPENED) {
        dropHostHandle(folder, file);
        return replaceEvent(folder, file, false, event);
    }
    if (hasOtherCreator(event)) {
        closeEvent(event);
        return false;
    }
    return takeOver(folder, file, event);
}

static bool createIn(int folder, const char* file) {
    EventObject event;
    if (!openToCreate(folder, file, &event)) {
        return false;
    }
    atomic_store(&event.state->author, processToken());
    if (!claimEvent(&event)) {
        closeEvent(&event);
        return false;
    }
    return addHandle(file, event, true) != NULL;
}

bool createOwn(const char* file) {
    const EventHandle* handle = findHandle(file);
    if (handle != NULL && handle->creator) {
        return true;
    }
    const int folder = lockEventFolder();
    const bool done = folder >= 0 && createIn(folder, file);
    unlockEventFolder(folder);
    return done;
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

bool removeOwn(const char* file) {
    EventHandle* handle = findHandle(file);
    if (handle == NULL || !handle->creator) {
        return false;
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
    return true;
}

// A signal whose creator died before this process came is no longer anybody's.
static void forgetOrphanSignal(const EventObject* event) {
    uint32_t pending = SIGNAL_PENDING;
    if (atomic_load(&event->state->toHost) == SIGNAL_PENDING && !hasOtherCreator(event)) {
        atomic_compare_exchange_strong(&event->state->toHost, &pending, SIGNAL_NONE);
    }
}

static bool openAsHost(int folder, const char* file, bool make, EventObject* event) {
    const OpenResult result = openEvent(folder, file, event);
    if (result == EVENT_OPENED && !isRetired(event)) {
        forgetOrphanSignal(event);
        return true;
    }
    if (result == EVENT_OPENED && !make) {
        closeEvent(event);
    }
    return make && result != EVENT_FAILED && replaceEvent(folder, file, result == EVENT_OPENED, event);
}

static EventHandle* findOrOpen(const char* file, bool make) {
    EventHandle* handle = findHandle(file);
    if (handle != NULL && isRetired(&handle->object)) {
        dropHandle(handle);
        handle = NULL;
    }
    if (handle == NULL) {
        EventObject event;
        const int folder = lockEventFolder();
        if (folder >= 0 && openAsHost(folder, file, make, &event)) {
            handle = addHandle(file, event, false);
        }
        unlockEventFolder(folder);
    }
    return handle;
}

EventHandle* accessToSignal(const char* file) {
    return findOrOpen(file, false);
}

EventHandle* accessToWait(const char* file) {
    return findOrOpen(file, true);
}

void finishLast(EventHandle* handle) {
    const int folder = lockEventFolder();
    retireEvent(folder, handle->file, &handle->object);
    unlockEventFolder(folder);
    dropHandle(handle);
}
