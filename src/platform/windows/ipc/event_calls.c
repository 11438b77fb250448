// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_calls.h"

#include "event_table.h"
#include "event_wait.h"

#include <errno.h>

// Makes this process the creator, or leaves everything as it is.
static int claimFree(const wchar_t* name, const EventObjects* objects, HANDLE* claim) {
    int error = lockObjects(objects);
    if (error != 0) {
        return error;
    }
    error = hasCreator(name) ? EADDRINUSE : claimEvent(name, claim);
    if (error == 0) {
        ResetEvent(objects->toHost);
        ResetEvent(objects->toCreator);
        ResetEvent(objects->removed);
    }
    unlockObjects(objects);
    return error;
}

// A process that waited as a host and then creates is the creator for all its threads.
static int createNew(const wchar_t* name, EventHandle* asHost) {
    EventObjects objects;
    HANDLE claim = NULL;
    int error = openObjects(name, &objects);
    if (error != 0) {
        return error;
    }
    error = claimFree(name, &objects, &claim);
    if (error != 0) {
        closeObjects(&objects);
        return error;
    }
    if (asHost != NULL) {
        dropHandle(asHost);
    }
    if (addHandle(name, objects, claim) == NULL) {
        CloseHandle(claim);
        return ENOMEM;
    }
    return 0;
}

static int createLocked(const wchar_t* name) {
    EventHandle* handle = findHandle(name);
    if (handle != NULL && handle->claim != NULL) {
        return 0;
    }
    const int error = createNew(name, handle);
    if (error == 0) {
        forgetRefusal(name);
    } else {
        rememberRefusal(name, error);
    }
    return error;
}

int createOwn(const wchar_t* name) {
    lockTable();
    const int error = createLocked(name);
    unlockTable();
    return error;
}

// Opens the event as a host does before it lets it go as its creator: the last signal stays as long as this
// process.
static int removeLocked(const wchar_t* name) {
    forgetRefusal(name);
    EventHandle* handle = findHandle(name);
    if (handle == NULL || handle->claim == NULL) {
        return EPERM;
    }
    EventObjects kept;
    const bool keeps = openObjects(name, &kept) == 0;
    lockObjects(&handle->objects);
    SetEvent(handle->objects.removed);
    CloseHandle(handle->claim);
    unlockObjects(&handle->objects);
    dropHandle(handle);
    EventHandle* asHost = keeps ? addHandle(name, kept, NULL) : NULL;
    if (asHost != NULL) {
        asHost->author = true;
    }
    return 0;
}

int removeOwn(const wchar_t* name) {
    lockTable();
    const int error = removeLocked(name);
    unlockTable();
    return error;
}

static int signalAsHost(EventHandle* handle) {
    const int error = lockObjects(&handle->objects);
    if (error != 0) {
        return error;
    }
    const bool heard = hasCreator(handle->name);
    if (heard) {
        handle->met = true;
        SetEvent(handle->objects.toCreator);
    }
    unlockObjects(&handle->objects);
    return heard ? 0 : ESRCH;
}

static int signalLocked(const wchar_t* name) {
    int error = refusalOf(name);
    EventHandle* handle = error == 0 ? hostHandle(name, &error) : NULL;
    if (handle == NULL) {
        return error;
    }
    if (handle->claim == NULL) {
        return signalAsHost(handle);
    }
    SetEvent(handle->objects.toHost);
    return 0;
}

int signalEvent(const wchar_t* name) {
    lockTable();
    const int error = signalLocked(name);
    unlockTable();
    return error;
}

static EventHandle* beginWait(const wchar_t* name, int* error) {
    lockTable();
    *error = refusalOf(name);
    EventHandle* handle = *error == 0 ? hostHandle(name, error) : NULL;
    if (handle != NULL) {
        useHandle(handle);
    }
    unlockTable();
    return handle;
}

// An event whose creator's death has been told is let go.
static void endWait(EventHandle* handle, int result) {
    lockTable();
    if (result == EOWNERDEAD) {
        dropHandle(handle);
    }
    releaseHandle(handle);
    unlockTable();
}

int waitForEvent(const wchar_t* name) {
    int result = WAIT_LOOK_AGAIN;
    while (result == WAIT_LOOK_AGAIN) {
        EventHandle* handle = beginWait(name, &result);
        if (handle != NULL) {
            result = handle->claim != NULL ? waitAsCreator(handle) : waitAsHost(handle);
            endWait(handle, result);
        }
    }
    return result;
}
