// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/consumo.h"

#include "e2e/support/deadline.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace planner::e2e {

namespace {

std::filesystem::path folderOf(pid_t process) {
    return "/proc/" + std::to_string(process);
}

long inStatus(pid_t process, const std::string& label) {
    std::ifstream status(folderOf(process) / "status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(label + ":")) {
            return std::stol(line.substr(label.size() + 1));
        }
    }
    throw std::runtime_error("no process holds " + label);
}

} // namespace

Consumo consumoOf(pid_t process) {
    const std::filesystem::directory_iterator descriptors(folderOf(process) / "fd");
    return {inStatus(process, "RssAnon"), std::distance(begin(descriptors), end(descriptors)),
            inStatus(process, "Threads")};
}

Consumo settledConsumo(pid_t process, const Consumo& before) {
    Consumo held = consumoOf(process);
    comesTrue([&] {
        held = consumoOf(process);
        return held.descriptors <= before.descriptors && held.threads == before.threads;
    });
    return held;
}

} // namespace planner::e2e
