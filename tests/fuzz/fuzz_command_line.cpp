// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/fixed_text.h"
#include "fuzz/fuzz_input.h"
#include "host/command_line.h"

namespace planner::test {
namespace {

constexpr std::string_view Separators = "/\\";

void requireSoundFolder(const std::string& path) {
    const std::string folder = folderOf(path);
    require(!folder.empty() && Separators.find(folder.back()) != std::string_view::npos,
            "a folder ends with a separator");
    require(folder == ".\\" || path.starts_with(folder), "a folder is the path's beginning");
}

/// A line of the same parts means the same flag and event.
void requireSameParts(const RigaComando& parts) {
    const bool complete = !parts.FlagAvvio.empty() && !parts.NomeEvento.empty() &&
                          !parts.PathTransito.empty() && parts.PathTransito.front() != ' ';
    if (complete) {
        const RigaComando again =
            parseCommandLine(parts.PathTransito + " " + parts.FlagAvvio + " " + parts.NomeEvento);
        require(again.FlagAvvio == parts.FlagAvvio && again.NomeEvento == parts.NomeEvento,
                "a line made of the parts has these parts");
    }
}

void fuzzCommandLine(const std::string& line) {
    const RigaComando parts = parseCommandLine(line);
    require(parts.FlagAvvio.size() <= 1, "the flag is one character at most");
    require(parts.NomeEvento.find(' ') == std::string::npos, "the event's name has no blanks");
    require(trimRight(line).ends_with(parts.NomeEvento), "the event's name ends the line");
    require(parts.PathTransito.size() <= line.size(), "a path only becomes shorter");
    require(!parts.polling() || parts.NomeEvento.size() == std::string_view("NOEVENT").size(),
            "polling has its keyword");
    requireSoundFolder(parts.PathTransito);
    requireSameParts(parts);
}

} // namespace
} // namespace planner::test

/// The line as it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    planner::test::fuzzCommandLine(planner::test::FuzzInput(data, size).rest());
    return 0;
}
