// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/system_file_system.h"
#include "platform/windows/texts.h"
#include "ports/runtime_errors.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace planner::test {
namespace {

class LockedFilesTest : public testing::Test {
protected:
    LockedFilesTest() { folder.write("file", std::string(125, 'x')); }
    ~LockedFilesTest() override { ::CloseHandle(other); }

    /// Another program that has the file open and lets others do what `share` says.
    void openElsewhere(unsigned long share) {
        other = ::CreateFileW(wideText(folder.path("file")).c_str(), GENERIC_READ | GENERIC_WRITE, share,
                              nullptr, OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(other, INVALID_HANDLE_VALUE);
    }
    std::string trouble() {
        try {
            std::string out(125, '.');
            files.openForReading(folder.path("file"))->read(out);
            return "";
        } catch (const FileError& error) {
            return error.what();
        }
    }

    TempFolder folder;
    SystemFileSystem files;
    void* other = nullptr;
};

TEST_F(LockedFilesTest, AFileThatAnotherProgramKeepsToItselfIsLocked) {
    openElsewhere(0);
    EXPECT_EQ(trouble(), "il file è bloccato da un altro programma");
}

TEST_F(LockedFilesTest, AFileThatAnotherProgramHasOpenIsNotLocked) {
    openElsewhere(FILE_SHARE_READ | FILE_SHARE_WRITE);
    EXPECT_EQ(trouble(), "");
}

TEST_F(LockedFilesTest, TheErrorNamesTheCause) {
    std::string out(1, '.');
    EXPECT_THROW(files.openForReading(folder.path("none")), FileError);
    EXPECT_NE(errorText(ERROR_FILE_NOT_FOUND), "");
    EXPECT_EQ(errorText(ERROR_FILE_NOT_FOUND).find_first_of("\r\n"), std::string::npos);
}

} // namespace
} // namespace planner::test
