// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/programma.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace planner::e2e {

namespace {

std::vector<std::string> commandLine(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), PLANNER_FILE);
    return arguments;
}

long voluntarySwitches(const std::filesystem::path& status) {
    constexpr std::string_view label = "voluntary_ctxt_switches:";
    std::ifstream file(status);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(label)) {
            return std::stol(line.substr(label.size()));
        }
    }
    return 0;
}

} // namespace

Programma::Programma(const std::vector<std::string>& arguments, const Environment& environment)
    : Processo(commandLine(arguments), environment) {}

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
        const long ticksBefore = processorTicks();
        return !endsWithin(interval) && processorTicks() == ticksBefore;
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
