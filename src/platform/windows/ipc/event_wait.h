// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "event_table.h"

// This process plays another part meanwhile: the wait begins anew.
enum { WAIT_LOOK_AGAIN = -1 };

// Both sleep until a signal of the other side, and take it: 0, an error number, or WAIT_LOOK_AGAIN.
int waitAsCreator(EventHandle* handle);
int waitAsHost(EventHandle* handle);
