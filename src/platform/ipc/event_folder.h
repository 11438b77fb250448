// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

// Opens the user's private folder of events, making it when it is missing, and locks it against
// every other process that would make or take away an event. Returns its descriptor, or less than 0:
// the negated error number when the folder cannot be had, EACCES when it is not private (another
// owner, or open to others).
int lockEventFolder(void);

// Unlocks and closes what lockEventFolder() returned; less than 0 is allowed and does nothing.
void unlockEventFolder(int folder);
