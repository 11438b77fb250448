// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <wchar.h>

// The four calls on the event of that name; each returns 0 or an error number.
int createOwn(const wchar_t* name);
int removeOwn(const wchar_t* name);
int signalEvent(const wchar_t* name);
int waitForEvent(const wchar_t* name);
