// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdbool.h>

#ifdef __cplusplus
extern "C" {
#endif

// Opens the event `nome` for the questions below, without taking part in it; -1 when that cannot be done.
// Closing the descriptor drops the locks of this process on the event (see event_lock.h).
int openToPeek(const char* nome);

// Whether no signal to the host waits to be taken; true as well when it cannot be told.
bool isSignalToHostTaken(int descriptor);

// Whether another process that used the event as a host lives; true as well when it cannot be told.
bool isHostAlive(int descriptor);

#ifdef __cplusplus
}
#endif
