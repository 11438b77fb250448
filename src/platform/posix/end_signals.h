// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/file_descriptor.h"

namespace planner {

/// Holds back the system's wishes that the program end (SIGTERM, SIGINT, SIGHUP; not those that the starter
/// had set to be ignored) and returns a descriptor that becomes readable when one comes. None when the system
/// gives none: the signals then do what they do by themselves. To be called before any other thread is made,
/// for threads inherit what is held back.
FileDescriptor holdEndSignals();

/// A file that grows beyond the user's limit fails to be written, instead of ending the program.
void failBeyondFileLimit();

} // namespace planner
