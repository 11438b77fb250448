// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/lettore.h"

#include <filesystem>

namespace planner::e2e {

Lettore::Lettore(const Accessibilita& bus, const Utente& utente) {
    Environment environment = bus.environment();
    environment["LANG"] = "C.UTF-8";
    environment["GSETTINGS_BACKEND"] = "memory"; // the user's desktop stays as it is
    environment["SPEECHD_CMD"] = "/bin/false";   // no sound
    environment["XDG_DATA_HOME"] = utente.home() + "/reader";
    const std::filesystem::path folder = utente.home() + "/reader/orca";
    std::filesystem::create_directories(folder);
    std::filesystem::copy_file(ORCA_CUSTOMIZATIONS, folder / "orca-customizations.py");
    m_reader = std::make_unique<Processo>(std::vector<std::string>{"orca", "--replace"}, environment,
                                          Errors::Dropped);
    hear("Screen reader on.");
}

Lettore::~Lettore() {
    m_reader->terminate();
}

void Lettore::hear(const std::string& utterance) {
    while (next() != utterance) {
    }
}

} // namespace planner::e2e
