// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

// Opens the user's private folder of events, making it when it is missing, and locks it against
// every other process that would make or take away an event. It lies in the folder that XDG_RUNTIME_DIR
// names, or under /tmp where that is not set, is empty or must not be trusted (secure execution).
// Returns its descriptor, or less than 0: the negated error number when the folder cannot be had,
// EINVAL for a relative XDG_RUNTIME_DIR, EACCES for one of another owner and for a folder of events that
// is not private.
int lockEventFolder(void);

// Unlocks and closes what lockEventFolder() returned; less than 0 is allowed and does nothing.
void unlockEventFolder(int folder);
