// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace planner {

/// What a person at a terminal asks for: the help or the version, when "--help" or "--version" is the whole
/// command line. Italian, UTF-8, ends with a line feed.
std::optional<std::string> testoChiesto(std::string_view line);

} // namespace planner
