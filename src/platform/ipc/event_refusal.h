// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

// The events that this process wanted to create and could not. Without them it would take part in the
// owner's conversation as if it were its host. All need the table locked (see event_table.h).

// Remembers that the event in `file` was refused with this error number.
void rememberRefusal(const char* file, int error);

// The error number of the last refusal of the event in `file`; 0 when it was not refused.
int refusalOf(const char* file);

void forgetRefusal(const char* file);
void forgetAllRefusals(void);
