// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/ipc/TavTermIPC.h"

#include "event_calls.h"
#include "event_name.h"

#include <errno.h>

typedef int (*EventCall)(const wchar_t* name);

static int callFor(const char* nome, EventCall call) {
    EventName name;
    int error = eventName(nome, name);
    if (error == 0) {
        error = call(name);
    }
    if (error != 0) {
        errno = error;
    }
    return error == 0;
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
