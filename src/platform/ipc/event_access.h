// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "event_table.h"

// All need the table locked.

// Creates the event in `file` with this process as its creator. True also when it is that already.
bool createOwn(const char* file);

// Removes the event that this process has created; false when it has not.
bool removeOwn(const char* file);

// The event in `file` to signal it, or null when there is none.
EventHandle* accessToSignal(const char* file);

// The event in `file` to wait for it. Where there is none yet, makes one without a creator, on
// which the wait sleeps until a creator takes it over. Null when the system refuses.
EventHandle* accessToWait(const char* file);

// Takes an event out of use whose last signal this process has just taken.
void finishLast(EventHandle* handle);
