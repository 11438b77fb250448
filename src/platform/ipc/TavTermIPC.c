// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"

#include "event_access.h"
#include "event_create.h"
#include "event_name.h"
#include "event_table.h"

#include <errno.h>

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

int TvIpcSetEvento(const char* nome) {
    return callFor(nome, signalEvent);
}

int TvIpcWaitEvento(const char* nome) {
    return callFor(nome, waitForEvent);
}
