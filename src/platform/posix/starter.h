// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/file_descriptor.h"

namespace planner {

/// A descriptor that becomes readable when the process that has started this one is gone. None when it is
/// gone already, or when the system cannot tell.
FileDescriptor watchStarter();

} // namespace planner
