// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "small_office.h"

#include <gtest/gtest.h>
#include <map>

namespace planner::test {

namespace {

struct FileState {
    std::string bytes;
    std::filesystem::file_time_type written;
    friend bool operator==(const FileState&, const FileState&) = default;
};

/// Every file of a folder, and the folder itself under the name ".".
std::map<std::string, FileState> stateOf(const std::filesystem::path& folder) {
    std::error_code unknown; // not every system says it of a folder
    std::map<std::string, FileState> state{{".", {"", std::filesystem::last_write_time(folder, unknown)}}};
    for (const auto& each : std::filesystem::directory_iterator(folder)) {
        state[each.path().filename().string()] = {fileBytes(each.path()), each.last_write_time()};
    }
    return state;
}

void expectUntouched(const SmallOffice& office, int exitCode) {
    const auto before = stateOf(office.folder());
    EXPECT_EQ(runDump({office.transitPath(), "--oggi", "20251120"}).exitCode, exitCode);
    EXPECT_EQ(runDump({office.transitPath(), "--grafico", "0"}).exitCode, exitCode);
    EXPECT_EQ(stateOf(office.folder()), before);
}

} // namespace

TEST(DumpIsReadOnly, WithEveryKind) {
    for (const std::string_view kind : {"M", "G", "A", "X"}) {
        SmallOffice office;
        office.richiesta = request(kind);
        office.write();
        expectUntouched(office, 0);
    }
}

TEST(DumpIsReadOnly, WithAShortTransitFile) {
    SmallOffice office;
    office.write();
    office.writeFile("transito", "HOST0001M");
    expectUntouched(office, 0);
}

TEST(DumpIsReadOnly, WithMarkersOfTheHostInTheFolder) {
    SmallOffice office;
    office.write();
    office.writeFile("LockPl.lck", "");
    office.writeFile("TvPlaOK.lck", "");
    expectUntouched(office, 0);
}

TEST(DumpIsReadOnly, WithNothingButTheTransitFile) {
    const SmallOffice office;
    office.writeFile("transito", "HOST0001M");
    expectUntouched(office, 0);
}

TEST(DumpIsReadOnly, WithoutATransitFile) {
    const SmallOffice office;
    expectUntouched(office, 1);
}

} // namespace planner::test
