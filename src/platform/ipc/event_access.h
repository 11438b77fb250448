// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

// What both sides do. Both need the table locked, leave it so, and return 0 or the error number of what
// went wrong.

// Signals the other side of the event in `file`; ESRCH when there is none.
int signalEvent(const char* file);

// Waits for the event in `file`, with the table unlocked meanwhile. Where there is none yet, makes one
// without a creator, on which the wait sleeps until a creator takes it over.
int waitForEvent(const char* file);
