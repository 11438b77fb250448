// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "event_object.h"

// Each makes a signal pending and wakes the other side. Returns 0 or an error number: EIDRM when the
// creator's event was cut short or taken out of use behind its back, ESRCH when there is no living
// creator to receive the host's.
int signalAsCreator(const EventObject* event);
int signalAsHost(const EventObject* event);
