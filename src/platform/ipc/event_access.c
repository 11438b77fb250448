// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_access.h"

#include "event_folder.h"
#include "event_lock.h"
#include "event_refusal.h"
#include "event_replace.h"
#include "event_retire.h"
#include "event_signal.h"
#include "event_table.h"
#include "event_wait.h"

#include <errno.h>
#include <stddef.h>

// A signal whose creator died before this process came is no longer anybody's.
static void forgetOrphanSignal(const EventObject* event) {
    uint32_t pending = SIGNAL_PENDING;
    if (atomic_load(&event->state->toHost) == SIGNAL_PENDING && !hasOtherCreator(event->descriptor)) {
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

// Makes this process one of the event's hosts.
static int joinHosts(const char* file, EventObject* event, EventHandle** handle) {
    const int error = lockAsHost(event->descriptor);
    if (error != 0) {
        closeEvent(event);
        return error;
    }
    *handle = addHandle(file, *event, false);
    return *handle == NULL ? ENOMEM : 0;
}

typedef int (*OpenFunction)(int folder, const char* file, EventObject* event);

static int openNew(const char* file, OpenFunction openEventOf, EventHandle** handle) {
    EventObject event;
    const int folder = lockEventFolder();
    if (folder < 0) {
        return -folder;
    }
    int error = openEventOf(folder, file, &event);
    if (error == 0) {
        error = joinHosts(file, &event, handle);
    }
    unlockEventFolder(folder);
    return error;
}

// Signals as a host through what this process has open; ESRCH as well when it has nothing open.
static int signalOpen(EventHandle* handle) {
    const int error = handle == NULL ? ESRCH : signalAsHost(&handle->object);
    if (error == 0) {
        handle->met = true;
    }
    return error;
}

static int signalCreator(const char* file) {
    EventHandle* handle = findHandle(file);
    int error = signalOpen(handle);
    if (error != 0 && (handle == NULL || isRetired(&handle->object))) {
        dropHandle(handle);
        error = openNew(file, openToSignal, &handle);
        return error == 0 ? signalOpen(handle) : error;
    }
    return error;
}

int signalEvent(const char* file) {
    const int refused = refusalOf(file);
    if (refused != 0) {
        return refused;
    }
    const EventHandle* handle = findHandle(file);
    return handle != NULL && handle->creator ? signalAsCreator(&handle->object) : signalCreator(file);
}

static int findOrMake(const char* file, EventHandle** handle) {
    const int refused = refusalOf(file);
    if (refused != 0) {
        return refused;
    }
    *handle = findHandle(file);
    return *handle != NULL ? 0 : openNew(file, openToWait, handle);
}

// Sleeps with the table unlocked, so that other threads can go on.
static int sleepUnlocked(EventHandle* handle) {
    const uint64_t token = processToken();
    bool met = handle->met;
    unlockTable();
    const int result =
        handle->creator ? waitAsCreator(&handle->object) : waitAsHost(&handle->object, token, &met);
    lockTable();
    handle->met = met;
    return result;
}

// Frees the name of an event whose last signal this process has just taken.
static void finishLast(EventHandle* handle) {
    const int folder = lockEventFolder();
    freeName(folder, handle->file, &handle->object);
    unlockEventFolder(folder);
}

// One wait on the event as it stands now.
static int waitOnce(const char* file) {
    EventHandle* handle = NULL;
    const int error = findOrMake(file, &handle);
    if (error != 0) {
        return error;
    }
    beginUse(handle);
    const int result = sleepUnlocked(handle);
    if (result == WAIT_TAKEN_LAST) {
        finishLast(handle);
    }
    if (result == WAIT_TAKEN_LAST || result == WAIT_LOOK_AGAIN) {
        dropHandle(handle);
    }
    endUse(handle);
    return result == WAIT_TAKEN_LAST ? 0 : result;
}

int waitForEvent(const char* file) {
    int result;
    do {
        result = waitOnce(file);
    } while (result == WAIT_LOOK_AGAIN);
    return result;
}
