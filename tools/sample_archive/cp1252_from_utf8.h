// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace planner {

/// UTF-8 as Windows-1252 bytes; nothing when the text is not UTF-8 or holds a character that the code page
/// lacks.
std::optional<std::string> cp1252FromUtf8(std::string_view text);

} // namespace planner
