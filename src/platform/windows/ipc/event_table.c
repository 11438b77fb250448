// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_table.h"

#include <errno.h>
#include <stdlib.h>

typedef struct Refusal {
    EventName name;
    int error;
    struct Refusal* next;
} Refusal;

static SRWLOCK tableLock = SRWLOCK_INIT;
static EventHandle* handles = NULL;
static Refusal* refusals = NULL;

void lockTable(void) {
    AcquireSRWLockExclusive(&tableLock);
}

void unlockTable(void) {
    ReleaseSRWLockExclusive(&tableLock);
}

EventHandle* findHandle(const wchar_t* name) {
    EventHandle* handle = handles;
    while (handle != NULL && wcscmp(handle->name, name) != 0) {
        handle = handle->next;
    }
    return handle;
}

EventHandle* useHandle(EventHandle* handle) {
    ++handle->users;
    return handle;
}

void releaseHandle(EventHandle* handle) {
    if (--handle->users > 0) {
        return;
    }
    closeObjects(&handle->objects);
    CloseHandle(handle->retired);
    free(handle);
}

EventHandle* addHandle(const wchar_t* name, EventObjects objects, HANDLE claim) {
    EventHandle* handle = calloc(1, sizeof *handle);
    const HANDLE retired = CreateEventW(NULL, TRUE, FALSE, NULL);
    if (handle == NULL || retired == NULL) {
        free(handle);
        closeObjects(&objects);
        return NULL;
    }
    wcscpy(handle->name, name);
    handle->objects = objects;
    handle->claim = claim;
    handle->retired = retired;
    handle->users = 1;
    handle->next = handles;
    handles = handle;
    return handle;
}

// What a creator that has died left pending is not for who comes afterwards.
static void dropWhatTheDeadLeft(const wchar_t* name, const EventObjects* objects) {
    if (!hasCreator(name) && !isSet(objects->removed)) {
        ResetEvent(objects->toHost);
    }
}

EventHandle* hostHandle(const wchar_t* name, int* error) {
    EventHandle* handle = findHandle(name);
    if (handle != NULL) {
        return handle;
    }
    EventObjects objects;
    *error = openObjects(name, &objects);
    if (*error != 0) {
        return NULL;
    }
    *error = lockObjects(&objects);
    if (*error != 0) {
        closeObjects(&objects);
        return NULL;
    }
    dropWhatTheDeadLeft(name, &objects);
    unlockObjects(&objects);
    handle = addHandle(name, objects, NULL);
    *error = handle == NULL ? ENOMEM : 0;
    return handle;
}

void dropHandle(EventHandle* handle) {
    EventHandle** place = &handles;
    while (*place != NULL && *place != handle) {
        place = &(*place)->next;
    }
    if (*place == NULL) {
        return; // another call has dropped it
    }
    *place = handle->next;
    SetEvent(handle->retired);
    releaseHandle(handle);
}

static Refusal** findRefusal(const wchar_t* name) {
    Refusal** place = &refusals;
    while (*place != NULL && wcscmp((*place)->name, name) != 0) {
        place = &(*place)->next;
    }
    return place;
}

int refusalOf(const wchar_t* name) {
    const Refusal* refusal = *findRefusal(name);
    return refusal == NULL ? 0 : refusal->error;
}

void forgetRefusal(const wchar_t* name) {
    Refusal** place = findRefusal(name);
    Refusal* refusal = *place;
    if (refusal != NULL) {
        *place = refusal->next;
        free(refusal);
    }
}

void rememberRefusal(const wchar_t* name, int error) {
    forgetRefusal(name);
    Refusal* refusal = calloc(1, sizeof *refusal);
    if (refusal != NULL) {
        wcscpy(refusal->name, name);
        refusal->error = error;
        refusal->next = refusals;
        refusals = refusal;
    }
}
