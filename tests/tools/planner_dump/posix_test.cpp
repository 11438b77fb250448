// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "small_office.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace planner::test {

TEST(DumpOnPosix, AFolderNameOfAnyBytesBreaksNothing) {
    SmallOffice office;
    office.write();
    const std::string folder = office.folder() + "archivi \xFF\xE8/";
    std::filesystem::create_directory(folder);
    std::filesystem::copy_file(office.transitPath(), folder + "transito");
    const DumpRun run = runDump({folder + "transito", "--oggi", "20251120"});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.json().at("messaggi").at(0).at("testo"),
              "Errore su File :" + office.folder() + "archivi \uFFFD\uFFFD/\\wrighipl");
}

TEST(DumpOnPosix, OutputThatCannotBeWrittenIsAnError) {
    const SmallOffice office;
    office.write();
    const std::string command =
        std::string(PLANNER_DUMP) + " " + office.transitPath() + " >/dev/full 2>/dev/null";
    const int status = std::system(command.c_str());
    EXPECT_EQ(WEXITSTATUS(status), 1);
}

} // namespace planner::test
