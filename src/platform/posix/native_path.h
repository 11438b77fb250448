// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace planner {

/// The path as the file system wants it: every "\" is a "/".
std::string nativePath(std::string path);

} // namespace planner
