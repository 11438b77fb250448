// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "event_object.h"

// Puts a new event in the place of what openEvent() found in `file` with `result`; `event` is that when
// it was opened, is taken out of use and closed. Needs the folder locked. Returns 0 or the error number
// of what went wrong.
int replaceEvent(int folder, const char* file, int result, EventObject* event);

// Whether openEvent() has failed: neither an event nor something to be replaced.
bool isTrouble(int result);
