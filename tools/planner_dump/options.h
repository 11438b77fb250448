// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "served_request/arguments.h"
#include "session/dates.h"
#include "session/staff.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace planner {

/// What the program is asked to do.
struct Options : CommonOptions {
    std::optional<IndiceCollaboratore> grafico; // the selected staff member; nothing: no chart
};

/// Reads the arguments that follow the program's name. Throws UsageError.
Options parseOptions(std::span<const std::string> arguments);

/// The text of --help.
extern const char* const HelpText;

} // namespace planner
