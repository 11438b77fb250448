// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdbool.h>

#ifdef __cplusplus
extern "C" {
#endif

// Makes a call of the C library fail in this process: the `nth` time from here on, counted from 1, and
// never again. `name` is one of those that fault.c defines: this program stands before the C library.
void failCall(const char* name, int nth, int error);

// Whether the failure asked for last has come about.
bool hasFailed(void);

#ifdef __cplusplus
}
#endif
