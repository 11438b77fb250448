// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"

#include "event_access.h"
#include "event_signal.h"

#include <stddef.h>

int TvIpcCreazioneEvento(const char* nome) {
    char file[EVENT_FILE_SIZE];
    if (!eventFileName(nome, file)) {
        return 0;
    }
    lockTable();
    const bool done = createOwn(file);
    unlockTable();
    return done;
}

int TvIpcRimozioneEvento(const char* nome) {
    char file[EVENT_FILE_SIZE];
    if (!eventFileName(nome, file)) {
        return 0;
    }
    lockTable();
    const bool done = removeOwn(file);
    unlockTable();
    return done;
}

static bool signalOtherSide(const EventHandle* handle) {
    if (handle->creator) {
        return signalDirection(&handle->object.state->toHost);
    }
    return hasOtherCreator(&handle->object) && signalDirection(&handle->object.state->toCreator);
}

int TvIpcSetEvento(const char* nome) {
    char file[EVENT_FILE_SIZE];
    if (!eventFileName(nome, file)) {
        return 0;
    }
    lockTable();
    const EventHandle* handle = accessToSignal(file);
    const bool done = handle != NULL && signalOtherSide(handle);
    unlockTable();
    return done;
}

// One wait on the event as it stands now. Sleeps with the table unlocked, so that other threads can
// go on.
static WaitResult waitOnce(const char* file) {
    WaitResult result = WAIT_FAILED;
    lockTable();
    EventHandle* handle = accessToWait(file);
    if (handle != NULL) {
        const uint64_t token = processToken();
        beginUse(handle);
        unlockTable();
        result = handle->creator ? waitAsCreator(&handle->object) : waitAsHost(&handle->object, token);
        lockTable();
        if (result == WAIT_TAKEN_LAST) {
            finishLast(handle);
        }
        // A creator whose event went out of use was told so by its own process: that ends its wait.
        if (result == WAIT_RETIRED && handle->creator) {
            result = WAIT_FAILED;
        }
        endUse(handle);
    }
    unlockTable();
    return result;
}

int TvIpcWaitEvento(const char* nome) {
    char file[EVENT_FILE_SIZE];
    if (!eventFileName(nome, file)) {
        return 0;
    }
    WaitResult result;
    do {
        result = waitOnce(file);
    } while (result == WAIT_RETIRED);
    return result == WAIT_TAKEN || result == WAIT_TAKEN_LAST;
}
