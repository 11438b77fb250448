// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "event_object.h"

// What a wait returns beside 0, a signal was taken, and error numbers.
enum {
    // A signal was taken, the last one of a removed event.
    WAIT_TAKEN_LAST = -1,
    // The event is out of use, its name has to be looked up again.
    WAIT_LOOK_AGAIN = -2
};

// Sleeps until a signal of the host can be taken. ECANCELED when the event was removed, EIDRM when its
// file was found cut short.
int waitAsCreator(const EventObject* event);

// Sleeps until a signal of the creator can be taken; never one given by the process `token`. `met` says
// whether this process has met a creator whose death it has not been told of; EOWNERDEAD tells it.
int waitAsHost(const EventObject* event, uint64_t token, bool* met);
