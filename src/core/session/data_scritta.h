// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/dates.h"

#include <string_view>

namespace planner {

/// The day that somebody means who writes "15", "15/8", "15/8/26" or "15.08.2026" ("-" separates too) while a
/// day is shown, from which month and year come where they are missing. A year of two digits is the one
/// nearest to the shown year. Nothing for a text that is no such day; any bytes may be asked for.
std::optional<Data> dataScritta(std::string_view testo, Data mostrata);

} // namespace planner
