// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_objects.h"

#include <errno.h>

enum { KINDS_LENGTH = 6, LOCK_PATIENCE = 5000 }; // characters; milliseconds

typedef wchar_t ObjectName[KINDS_LENGTH + EVENT_NAME_LONGEST + 1];

static const wchar_t* objectName(wchar_t kind, const wchar_t* name, ObjectName out) {
    wcscpy(out, L"TvIpc");
    out[KINDS_LENGTH - 1] = kind;
    wcscpy(out + KINDS_LENGTH, name);
    return out;
}

static int lastError(void) {
    switch (GetLastError()) {
    case ERROR_ACCESS_DENIED:
        return EACCES;
    case ERROR_INVALID_HANDLE: // another kind of object has the name
        return EEXIST;
    default:
        return ENOMEM;
    }
}

static HANDLE openEvent(wchar_t kind, const wchar_t* name, bool manual, bool set) {
    ObjectName object;
    return CreateEventW(NULL, manual, set, objectName(kind, name, object));
}

int openObjects(const wchar_t* name, EventObjects* objects) {
    ObjectName lock;
    objects->lock = CreateMutexW(NULL, FALSE, objectName(L'L', name, lock));
    objects->toHost = openEvent(L'H', name, false, false);
    objects->toCreator = openEvent(L'C', name, false, false);
    objects->removed = openEvent(L'R', name, true, true);
    if (objects->lock != NULL && objects->toHost != NULL && objects->toCreator != NULL &&
        objects->removed != NULL) {
        return 0;
    }
    const int error = lastError();
    closeObjects(objects);
    return error;
}

static void closeIfOpen(HANDLE handle) {
    if (handle != NULL) {
        CloseHandle(handle);
    }
}

void closeObjects(EventObjects* objects) {
    closeIfOpen(objects->lock);
    closeIfOpen(objects->toHost);
    closeIfOpen(objects->toCreator);
    closeIfOpen(objects->removed);
}

// A process that died with the lock had done nothing that the next one must repair.
int lockObjects(const EventObjects* objects) {
    const DWORD result = WaitForSingleObject(objects->lock, LOCK_PATIENCE);
    return result == WAIT_OBJECT_0 || result == WAIT_ABANDONED ? 0 : ETIMEDOUT;
}

void unlockObjects(const EventObjects* objects) {
    ReleaseMutex(objects->lock);
}

int claimEvent(const wchar_t* name, HANDLE* claim) {
    *claim = openEvent(L'O', name, true, false);
    return *claim == NULL ? lastError() : 0;
}

bool hasCreator(const wchar_t* name) {
    ObjectName object;
    const HANDLE claim = OpenEventW(SYNCHRONIZE, FALSE, objectName(L'O', name, object));
    closeIfOpen(claim);
    return claim != NULL || GetLastError() == ERROR_ACCESS_DENIED;
}

bool take(HANDLE signal) {
    return WaitForSingleObject(signal, 0) == WAIT_OBJECT_0;
}

bool isSet(HANDLE event) {
    return WaitForSingleObject(event, 0) == WAIT_OBJECT_0;
}
