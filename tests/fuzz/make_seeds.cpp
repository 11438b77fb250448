// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fuzz/office_seeds.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace planner::test {
namespace {

std::vector<NamedSeed> commandLineSeeds() {
    return {{"event", "C:\\studio\\trans.dat 1 TAVEVENT"},
            {"polling", "C:\\\\studio\\\\trans.dat,2 noevent "},
            {"network_path", "\\\\server\\\\dati//trans.dat 1 EV"},
            {"path_with_blanks", "/archivi/studio legale/trans.dat 1 EV"},
            {"no_event", "/archivi/trans.dat"},
            {"separators_only", "//\\\\/\\ / \\"},
            {"blanks_only", "     "},
            {"control_bytes", std::string("\x01\0\xFF\r\n \t \0", 9)}};
}

std::vector<NamedSeed> textSeeds() {
    return {{"hours", "0007:30"},
            {"most_hours", "0546"},
            {"day", "20240229"},
            {"no_day", "20060231"},
            {"fraction", " -12.5e+2 "},
            {"rounds_to_even", "32766.5"},
            {"just_too_large", "32768"},
            {"too_large", "1e309"},
            {"too_small", "1e-400"},
            {"infinite", "-inf"},
            {"many_digits", std::string(400, '9')},
            {"accents", "Nicol\xF2 \x80\x81"},
            {"utf8", "Nicol\xC3\xB2 \xE2\x82\xAC"},
            {"broken_utf8", "\xC0\xAF\xE2\x82\xED\xA0\x80"}};
}

void write(const std::filesystem::path& folder, const std::vector<NamedSeed>& seeds) {
    std::filesystem::create_directories(folder);
    for (const auto& [name, bytes] : seeds) {
        std::ofstream file(folder / name, std::ios::binary | std::ios::trunc);
        file << bytes;
    }
}

} // namespace
} // namespace planner::test

/// Writes the seeds anew, for when a record or the inputs' form has changed: fuzz-make-seeds FOLDER.
int main(int argc, char** argv) {
    using namespace planner::test;
    if (argc != 2) {
        std::cerr << "usage: fuzz-make-seeds FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    write(folder / "request", requestSeeds());
    write(folder / "charts", chartSeeds());
    write(folder / "command_line", commandLineSeeds());
    write(folder / "texts", textSeeds());
}
