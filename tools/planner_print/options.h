// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/stampa/documento.h"
#include "served_request/arguments.h"

#include <optional>
#include <string>

namespace planner {

enum class FormatoFile : std::uint8_t { pdf, png };

/// What the program is asked to do.
struct Options : CommonOptions {
    FormatoFile formato = FormatoFile::pdf;
    std::string outputPath; // bytes, as given
    Carta carta = CartaA4;
    bool totali = false;
};

/// Reads the arguments that follow the program's name. Throws UsageError.
Options parseOptions(std::span<const std::string> arguments);

/// The text of --help.
extern const char* const HelpText;

} // namespace planner
