// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"

#include "event_access.h"
#include "event_signal.h"

#include <errno.h>
#include <stddef.h>

// What a call returns for 0 or an error number.
static int resultOf(int error) {
    if (error != 0) {
        errno = error;
    }
    return error == 0;
}

typedef int (*EventCall)(const char* file);

// Makes the call with the table locked.
static int callFor(const char* nome, EventCall call) {
    char file[EVENT_FILE_SIZE];
    int error = eventFileName(nome, file);
    if (error == 0) {
        lockTable();
        error = call(file);
        unlockTable();
    }
    return resultOf(error);
}

int TvIpcCreazioneEvento(const char* nome) {
    return callFor(nome, createOwn);
}

int TvIpcRimozioneEvento(const char* nome) {
    return callFor(nome, removeOwn);
}

static bool signalOtherSide(const EventHandle* handle) {
    if (handle->creator) {
        return signalDirection(&handle->object.state->toHost);
    }
    return hasOtherCreator(&handle->object) && signalDirection(&handle->object.state->toCreator);
}

static int signalEvent(const char* file) {
    EventHandle* handle = NULL;
    const int error = accessToSignal(file, &handle);
    if (error != 0) {
        return error;
    }
    return signalOtherSide(handle) ? 0 : ESRCH;
}

int TvIpcSetEvento(const char* nome) {
    return callFor(nome, signalEvent);
}

// Sleeps with the table unlocked, so that other threads can go on.
static int sleepUnlocked(EventHandle* handle) {
    const uint64_t token = processToken();
    unlockTable();
    const int result = handle->creator ? waitAsCreator(&handle->object) : waitAsHost(&handle->object, token);
    lockTable();
    return result;
}

// One wait on the event as it stands now; WAIT_RETIRED when its name has to be looked up again.
static int waitOnce(const char* file) {
    EventHandle* handle = NULL;
    int result = accessToWait(file, &handle);
    if (result != 0) {
        return result;
    }
    beginUse(handle);
    result = sleepUnlocked(handle);
    if (result == WAIT_TAKEN_LAST) {
        finishLast(handle);
        result = 0;
    }
    // A creator whose event went out of use was told so by its own process: that ends its wait.
    if (result == WAIT_RETIRED && handle->creator) {
        result = ECANCELED;
    }
    endUse(handle);
    return result;
}

static int waitForEvent(const char* file) {
    int result;
    do {
        result = waitOnce(file);
    } while (result == WAIT_RETIRED);
    return result;
}

int TvIpcWaitEvento(const char* nome) {
    return callFor(nome, waitForEvent);
}
