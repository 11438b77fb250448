// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace planner {

/// The text between quotes and free of control characters and invalid UTF-8, so that an argument of any
/// bytes can go into a message.
std::string inQuotes(std::string_view text);

} // namespace planner
