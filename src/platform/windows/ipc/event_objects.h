// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "event_name.h"

#include <stdbool.h>
#include <windows.h>

// What the system keeps of an event for as long as any process has it open.
typedef struct {
    HANDLE lock;      // held for the length of a call, so that creation, removal and signals do not mix
    HANDLE toHost;    // set while a signal of the creator is pending
    HANDLE toCreator; // set while a signal of a host is pending
    HANDLE removed;   // set unless a creator has come and not removed the event
} EventObjects;

// Opens them, making those that are missing; an error number.
int openObjects(const wchar_t* name, EventObjects* objects);
void closeObjects(EventObjects* objects);

// 0, or an error number when another process does not let go.
int lockObjects(const EventObjects* objects);
void unlockObjects(const EventObjects* objects);

// The creator alone has this one open, so that it goes with the process. To be asked for with the objects
// locked. Both return an error number.
int claimEvent(const wchar_t* name, HANDLE* claim);
bool hasCreator(const wchar_t* name);

// Whether a signal is there, which is then taken.
bool take(HANDLE signal);

// Whether it is set, for those that stay so.
bool isSet(HANDLE event);
