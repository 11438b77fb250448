// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "event_object.h"

// WAIT_TAKEN: a signal was taken. WAIT_TAKEN_LAST: the same, and it was the last one of a removed
// event. WAIT_RETIRED: the event went out of use. WAIT_FAILED: the system refused.
typedef enum { WAIT_TAKEN, WAIT_TAKEN_LAST, WAIT_RETIRED, WAIT_FAILED } WaitResult;

// Makes a signal pending in this direction and wakes the other side. False when the event is out of
// use. Not only one is woken: if that one were killed, the others would sleep beside the signal.
bool signalDirection(_Atomic uint32_t* direction);

// Sleeps until a signal of the host can be taken.
WaitResult waitAsCreator(const EventObject* event);

// Sleeps until a signal of the creator can be taken; never one given by the process `token`.
WaitResult waitAsHost(const EventObject* event, uint64_t token);
