// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_create.h"

#include "event_folder.h"
#include "event_lock.h"
#include "event_refusal.h"
#include "event_replace.h"
#include "event_retire.h"
#include "event_table.h"
#include "futex.h"

#include <errno.h>

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
// need not look again; a removed one is replaced, for its last signal belongs to its author.
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
    if (hasOtherCreator(event->descriptor)) {
        closeEvent(event);
        return EADDRINUSE;
    }
    return takeOver(folder, file, event);
}

// Makes this process the creator, and then wakes the hosts that nobody had come for: they look after its
// life from here on.
static int claimEvent(EventObject* event) {
    atomic_store(&event->state->author, processToken());
    const int error = lockAsCreator(event->descriptor);
    if (error == 0) {
        uint32_t vacant = SIGNAL_VACANT;
        atomic_compare_exchange_strong(&event->state->toHost, &vacant, SIGNAL_NONE);
        futexWakeAll(&event->state->toHost);
    }
    return error;
}

static int createIn(int folder, const char* file) {
    EventObject event;
    int error = openToCreate(folder, file, &event);
    if (error != 0) {
        return error;
    }
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
    return handle != NULL && !isRetired(&handle->object) && hasOtherCreator(handle->object.descriptor);
}

// Whether this process is the creator. One whose file was cut short is good for nothing: it is dropped.
static bool isCreator(EventHandle* handle) {
    if (handle == NULL || !handle->creator) {
        return false;
    }
    const bool whole = wholeState(&handle->object) != NULL;
    if (!whole) {
        dropHandle(handle);
    }
    return whole;
}

int createOwn(const char* file) {
    if (isCreator(findHandle(file))) {
        return 0;
    }
    const int error = isOwnedElsewhere(findHandle(file)) ? EADDRINUSE : createNew(file);
    if (error == 0) {
        forgetRefusal(file);
    } else {
        rememberRefusal(file, error);
    }
    return error;
}

int removeOwn(const char* file) {
    forgetRefusal(file);
    EventHandle* handle = findHandle(file);
    if (handle == NULL || !handle->creator) {
        return EPERM;
    }
    // Without the folder the event still ends; the mark in it makes the next opener clear the name.
    const int folder = lockEventFolder();
    retireAsCreator(folder, file, &handle->object);
    unlockAsCreator(handle->object.descriptor);
    dropHandle(handle);
    unlockEventFolder(folder);
    return 0;
}
