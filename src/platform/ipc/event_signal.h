// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "event_object.h"

// What a wait returns beside 0, a signal was taken, and the error numbers of the system.
// WAIT_TAKEN_LAST: a signal was taken, the last one of a removed event. WAIT_RETIRED: the event went out
// of use.
enum { WAIT_TAKEN_LAST = -1, WAIT_RETIRED = -2 };

// Makes a signal pending in this direction and wakes the other side. False when the event is out of
// use. Not only one is woken: if that one were killed, the others would sleep beside the signal.
bool signalDirection(_Atomic uint32_t* direction);

// Sleeps until a signal of the host can be taken.
int waitAsCreator(const EventObject* event);

// Sleeps until a signal of the creator can be taken; never one given by the process `token`.
int waitAsHost(const EventObject* event, uint64_t token);
