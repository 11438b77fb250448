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
    // Removed with a signal that the other side had not taken yet.
    SIGNAL_LAST = 3,
    // Only to the host: like none, and hosts sleep that have met no creator. One that comes wakes them.
    SIGNAL_VACANT = 4
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

// What the event's file holds, to be touched at once; null when the file has been cut short, where a touch
// would end the process. To be asked anew after each sleep.
EventState* wholeState(const EventObject* event);

// Whether `file` is still the name of the event.
bool standsIn(int folder, const char* file, const EventObject* event);
