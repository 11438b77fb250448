// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdatomic.h>
#include <stdbool.h>
#include <stdint.h>

// What a direction of an event can be. The values live in a file shared between processes.
enum {
    SIGNAL_NONE = 0,
    SIGNAL_PENDING = 1,
    // The object is out of use: whoever holds it looks its name up again.
    SIGNAL_RETIRED = 2,
    // Removed by its creator with the signal to the host still pending.
    SIGNAL_LAST = 3
};

// The content of an event's file. Each change is one atomic operation, so a process killed at any
// moment leaves a state that is whole.
typedef struct {
    char magic[16];
    _Atomic uint64_t author;
    _Atomic uint32_t toHost;
    _Atomic uint32_t toCreator;
} EventState;

typedef struct {
    int descriptor;
    EventState* state;
} EventObject;

// Of openEvent(): something else stands there (not a regular file of this user alone, or not an
// event).
enum { EVENT_FOREIGN = -1 };

// The functions that take `folder` need it locked (see event_folder.h). Those that return an int return
// 0, or the error number of what went wrong.

// Opens the event in `file`. ENOENT when nothing stands there; what is EVENT_FOREIGN is neither
// followed nor read through.
int openEvent(int folder, const char* file, EventObject* event);

// Makes a new event, no signal pending, where nothing stands in `file`.
int makeEvent(int folder, const char* file, EventObject* event);

// Lets go of the event without changing it.
void closeEvent(EventObject* event);

// Whether another process is the living creator of the event.
bool hasOtherCreator(const EventObject* event);

// Makes this process the creator until it lets go or ends; EADDRINUSE when another process is.
int claimEvent(const EventObject* event);
void unclaimEvent(const EventObject* event);

// Marks the event as out of use, wakes all that wait on it, and only then frees its name: whoever
// is killed half-way leaves a mark that the next one finds.
void retireEvent(int folder, const char* file, const EventObject* event);
