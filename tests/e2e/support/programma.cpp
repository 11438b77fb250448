// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/programma.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace planner::e2e {

namespace {

/// What stands behind the label in a file of that form; empty when the file, or the label, is missing.
std::string valueIn(const std::filesystem::path& status, std::string_view label) {
    std::ifstream file(status);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(label)) {
            return line.substr(label.size());
        }
    }
    return {};
}

long voluntarySwitches(const std::filesystem::path& status) {
    const std::string value = valueIn(status, "voluntary_ctxt_switches:");
    return value.empty() ? 0 : std::stol(value);
}

} // namespace

std::vector<std::string> Programma::commandLine(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), PLANNER_FILE);
    return arguments;
}

Programma::Programma(const std::vector<std::string>& arguments, const Environment& environment, Errors errors)
    : Processo(commandLine(arguments), environment, errors) {}

bool Programma::comesToRest(std::chrono::milliseconds interval) {
    // Two looks a second, and as much again and more for the toolkit's own timers.
    const auto switches = interval / std::chrono::milliseconds{160};
    const auto ticks = interval / std::chrono::milliseconds{100}; // a tenth of the time
    return comesTrue([&] {
        const long switchesBefore = wakeUps();
        const long ticksBefore = processorTicks();
        return !endsWithin(interval) && wakeUps() - switchesBefore <= switches &&
               processorTicks() - ticksBefore <= ticks;
    });
}

bool Programma::comesToSleep(std::chrono::milliseconds interval) {
    return comesTrue([&] {
        const long switchesBefore = wakeUps();
        return !endsWithin(interval) && wakeUps() == switchesBefore;
    });
}

bool Programma::comesToHoldSignals() const {
    constexpr unsigned long held = 1UL << (SIGTERM - 1);
    return comesTrue([this] {
        const std::string mask = valueIn("/proc/" + std::to_string(pid()) + "/status", "SigBlk:");
        return !mask.empty() && (std::stoul(mask, nullptr, 16) & held) != 0;
    });
}

long Programma::wakeUps() const {
    long count = 0;
    std::error_code gone;
    for (const auto& thread :
         std::filesystem::directory_iterator("/proc/" + std::to_string(pid()) + "/task", gone)) {
        count += voluntarySwitches(thread.path() / "status");
    }
    return count;
}

long Programma::processorTicks() const {
    std::ifstream file("/proc/" + std::to_string(pid()) + "/stat");
    std::string line;
    std::getline(file, line);
    std::istringstream fields(line.substr(line.rfind(')') + 1));
    constexpr int fieldsBefore = 11; // between the name and the times
    std::string skipped;
    for (int i = 0; i < fieldsBefore; ++i) {
        fields >> skipped;
    }
    long user = 0;
    long system = 0;
    fields >> user >> system;
    return user + system;
}

} // namespace planner::e2e
