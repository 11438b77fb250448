// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace planner {

/// The text as the system wants it, from UTF-8; bytes that are none become the replacement character.
std::wstring wideText(std::string_view text);
/// The system's text in UTF-8.
std::string utf8Text(std::wstring_view text);
/// What the system says of one of its error numbers, in UTF-8, without a line's end.
std::string errorText(unsigned long error);

} // namespace planner
