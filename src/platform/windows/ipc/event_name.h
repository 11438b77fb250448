// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <wchar.h>

// With the few letters before it still a name that the system takes.
enum { EVENT_NAME_LONGEST = 252 };

typedef wchar_t EventName[EVENT_NAME_LONGEST + 1];

// What the event's objects are called, apart from what tells them from each other: each byte as a character,
// "\" as
// "/" since it cannot stand there, and "/", "%" and control bytes as "%" and two digits. 0, or EINVAL for
// none, ENAMETOOLONG.
int eventName(const char* nome, EventName name);
