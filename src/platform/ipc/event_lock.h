// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdbool.h>

// Which processes use an event is told by record locks on its file, one byte for the creator and one for
// all hosts: the kernel drops them with their process, however that ends, and a child does not inherit
// them. The price is that closing any descriptor of the file drops the process's locks on it, so none is
// opened beside the one that holds them.
//
// A question that the system does not answer counts as a yes. Those that return an int return 0 or the
// error number.

// Makes this process the creator; EADDRINUSE when another process is.
int lockAsCreator(int descriptor);
void unlockAsCreator(int descriptor);

// Whether another process is the living creator.
bool hasOtherCreator(int descriptor);

// Makes this process one of the hosts.
int lockAsHost(int descriptor);

// Whether another process is a living host.
bool hasOtherHost(int descriptor);
