// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ipc_fixture.h"

#include <array>
#include <cstdio>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace planner::ipctest {
namespace {

class LibraryFileTest : public IpcTest {};

std::vector<std::string> linesOf(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> output(popen(command.c_str(), "r"), pclose);
    std::string text;
    std::array<char, 4096> buffer{};
    while (output && std::fgets(buffer.data(), static_cast<int>(buffer.size()), output.get()) != nullptr) {
        text += buffer.data();
    }
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

TEST_F(LibraryFileTest, ExportsTheFourCallsAndNothingElse) {
    if (PLANNER_SANITIZED != 0) {
        GTEST_SKIP() << "sanitizers add symbols of their own";
    }
    std::set<std::string> exported;
    for (const std::string& line : linesOf(IPC_NM " -D --defined-only '" IPC_LIBRARY_FILE "'")) {
        exported.insert(line.substr(line.rfind(' ') + 1));
    }
    const std::set<std::string> expected{"TvIpcCreazioneEvento", "TvIpcSetEvento", "TvIpcWaitEvento",
                                         "TvIpcRimozioneEvento"};
    EXPECT_EQ(exported, expected);
}

TEST_F(LibraryFileTest, DependsOnTheCLibraryAlone) {
    if (PLANNER_SANITIZED != 0) {
        GTEST_SKIP() << "sanitizers add libraries of their own";
    }
    std::vector<std::string> needed;
    for (const std::string& line : linesOf(IPC_READELF " -d '" IPC_LIBRARY_FILE "'")) {
        if (line.find("(NEEDED)") != std::string::npos) {
            needed.push_back(line.substr(line.find('[')));
        }
    }
    EXPECT_EQ(needed, std::vector<std::string>{"[libc.so.6]"});
}

TEST_F(LibraryFileTest, HostInCCanLoadAndUnloadItManyTimes) {
    Child host([] {
        execl(IPC_LOADING_HOST, IPC_LOADING_HOST, IPC_LIBRARY_FILE, static_cast<char*>(nullptr));
        return 127;
    });
    EXPECT_EQ(host.exitCode(), 0);
}

} // namespace
} // namespace planner::ipctest
