// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace planner {

/// The program's version, "1.2.3".
std::string_view versione();

} // namespace planner
