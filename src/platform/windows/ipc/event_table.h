// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "event_objects.h"

#include <stdatomic.h>

// One event as this process uses it. It plays one part for as long as it lives.
typedef struct EventHandle {
    EventName name;
    EventObjects objects;
    HANDLE claim;        // of the creator, else null
    HANDLE retired;      // set when this process has removed or created the event meanwhile
    _Atomic bool met;    // a host's: it has met a creator whose death it has not been told of
    _Atomic bool author; // a host's: the last signal is its own, until a creator has come
    int users;           // the table, and the calls that use it
    struct EventHandle* next;
} EventHandle;

// All the others are to be called with the table locked.
void lockTable(void);
void unlockTable(void);

// Nothing when there is none.
EventHandle* findHandle(const wchar_t* name);
// The handle of this process, made as a host's when there is none; null when the system refuses, which
// `error` says.
EventHandle* hostHandle(const wchar_t* name, int* error);
// Adds one over objects that are open; null, with the objects closed, when there is no room.
EventHandle* addHandle(const wchar_t* name, EventObjects objects, HANDLE claim);

EventHandle* useHandle(EventHandle* handle);
void releaseHandle(EventHandle* handle);
// Takes it out of the table and tells the calls that still use it.
void dropHandle(EventHandle* handle);

// Why this process, which wanted to create the event, has no part in it; 0 when it has.
int refusalOf(const wchar_t* name);
void rememberRefusal(const wchar_t* name, int error);
void forgetRefusal(const wchar_t* name);
