// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

// What only a creator does. Both need the table locked and return 0 or the error number of what went
// wrong.

// Creates the event in `file` with this process as its creator. 0 also when it is that already.
int createOwn(const char* file);

// Removes the event that this process has created; EPERM when it has not.
int removeOwn(const char* file);
