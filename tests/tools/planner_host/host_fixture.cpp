// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host_fixture.h"

#include <sstream>

namespace planner::toolstest {

HostTest::HostTest() {
    std::filesystem::create_directory(temporaryParent());
    std::filesystem::create_directory(runtimeFolder());
    std::filesystem::permissions(runtimeFolder(), std::filesystem::perms::owner_all);
}

RunResult HostTest::host(const std::string& script, std::vector<std::string> options,
                         const std::string& interruptAfter) {
    options.insert(options.begin(), {"--planner", FAKE_PLANNER_FILE});
    std::map<std::string, std::string> environment = {{"FAKE_PLANNER_SCRIPT", script},
                                                      {"FAKE_PLANNER_DIARY", (folder() / "diary").string()},
                                                      {"TMPDIR", temporaryParent().string()},
                                                      {"XDG_RUNTIME_DIR", runtimeFolder().string()}};
    environment.insert(m_variables.begin(), m_variables.end());
    return run({.program = PLANNER_HOST_FILE,
                .arguments = options,
                .environment = environment,
                .interruptAfter = interruptAfter});
}

std::vector<std::string> HostTest::diary() const {
    std::istringstream text(test::fileBytes(folder() / "diary"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        lines.push_back(line);
    }
    return lines;
}

RunResult HostModeTest::hostInMode(const std::string& script, std::vector<std::string> options,
                                   const std::string& interruptAfter) {
    options.insert(options.begin(), {"--modo", GetParam(), "--anno", "2006", "--collaboratori", "3"});
    return host(script, options, interruptAfter);
}

} // namespace planner::toolstest
