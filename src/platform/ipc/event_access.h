// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "event_table.h"

// All need the table locked. Those that return an int return 0, or the error number of what went wrong.

// Creates the event in `file` with this process as its creator. 0 also when it is that already.
int createOwn(const char* file);

// Removes the event that this process has created; EPERM when it has not.
int removeOwn(const char* file);

// Gives the event in `file` to signal it; ESRCH when there is none.
int accessToSignal(const char* file, EventHandle** handle);

// Gives the event in `file` to wait for it. Where there is none yet, makes one without a creator, on
// which the wait sleeps until a creator takes it over.
int accessToWait(const char* file, EventHandle** handle);

// Takes an event out of use whose last signal this process has just taken.
void finishLast(EventHandle* handle);
