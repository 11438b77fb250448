// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "event_name.h"
#include "event_object.h"

// An event that this process has open. The four calls know an event by its name alone, so the
// process keeps its open events in one table.
typedef struct EventHandle {
    struct EventHandle* next;
    unsigned users; // the table, and each call in progress
    bool creator;
    bool met; // as a host, a creator whose death this process has not been told of
    EventObject object;
    char file[EVENT_FILE_SIZE];
} EventHandle;

// Everything below needs the table locked. In the child of a fork it starts empty.
void lockTable(void);
void unlockTable(void);

// The handle of the event in `file`, or null.
EventHandle* findHandle(const char* file);

// Adds a handle and takes over the event; also drops handles that are of no more use. Null, with
// the event closed, when there is no memory.
EventHandle* addHandle(const char* file, EventObject object, bool creator);

// Takes the handle, if any, out of the table; the event is closed when the last call lets go of it.
void dropHandle(EventHandle* handle);

// Keeps the handle valid while the table is not locked, until endUse().
void beginUse(EventHandle* handle);
void endUse(EventHandle* handle);

// A number that tells this process from every other one, ended ones included. Never 0.
uint64_t processToken(void);
