// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "event_object.h"

// The functions that take `folder` need it locked (see event_folder.h).

// Whether the event is out of use: whoever holds it looks its name up again.
bool isRetired(const EventObject* event);

// Takes the event out of use: marks it, wakes all that wait on it, and only then frees its name, so
// that whoever is killed half-way leaves a mark that the next one finds. A signal of the host that the
// creator has not taken yet stays for a wait that the creator has begun, or for the host to take back.
void retireEvent(int folder, const char* file, const EventObject* event);

// The same by the creator, which leaves the event under its name while a signal to the host is pending.
void retireAsCreator(int folder, const char* file, const EventObject* event);

// Frees the name of an event that is out of use, if it still has it.
void freeName(int folder, const char* file, const EventObject* event);
