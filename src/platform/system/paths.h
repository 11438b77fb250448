// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace planner {

/// Paths as the program's texts have them: UTF-8 where the system has characters, the bytes themselves
/// elsewhere.
std::filesystem::path pathOf(std::string_view text);
std::string textOf(const std::filesystem::path& path);

} // namespace planner
