// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace planner {

/// The parts of the host's command line.
struct RigaComando {
    std::string PathTransito; // full path of the transit file, doubled separators made single
    std::string FlagAvvio;    // one character; empty when the line is too short to hold it
    std::string NomeEvento;   // event name or "NOEVENT"; empty when the line has no blank

    /// True for "NOEVENT" in any letter case.
    bool polling() const;
};

/// Takes the command line apart: transit path, a separator, the flag, a blank, the event name.
RigaComando parseCommandLine(std::string_view line);

/// The folder part of a path, up to and including its last "/", else its last "\"; ".\" without either.
std::string folderOf(std::string_view path);

} // namespace planner
