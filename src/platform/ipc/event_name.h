// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

// Room for the longest file name of the file systems in use, with its terminator.
#define EVENT_FILE_SIZE 256

// Writes the file name that stands for the event `name`; no two names share one. Returns 0, EINVAL for
// a null pointer, or ENAMETOOLONG when the file name would not fit.
int eventFileName(const char* name, char file[EVENT_FILE_SIZE]);
