// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <system_error>

namespace planner {

/// One of the system's error numbers as the standard library's, where it has a like one.
std::error_code errorCode(unsigned long error);
/// Throws std::system_error for the calling thread's last error.
[[noreturn]] void throwLastError();

} // namespace planner
