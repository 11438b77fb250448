// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

// Opens the user's private folder of events, making it when it is missing, and locks it against
// every other process that would make or take away an event. Returns its descriptor, or -1 when the
// folder cannot be had or is not private: another owner, open to others, or not a folder at all.
int lockEventFolder(void);

// Unlocks and closes what lockEventFolder() returned; -1 is allowed and does nothing.
void unlockEventFolder(int folder);
