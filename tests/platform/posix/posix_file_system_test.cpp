// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/posix/posix_file_system.h"
#include "platform/posix/system_clock.h"
#include "ports/runtime_errors.h"
#include "support/lock_holder.h"
#include "support/temp_folder.h"

#include <array>
#include <gtest/gtest.h>
#include <stdlib.h>

namespace planner::test {
namespace {

class PosixFileSystemTest : public testing::Test {
protected:
    std::string readStart(const std::string& name, std::size_t count) {
        std::string out(count, '.');
        const std::size_t read = files.readStart(folder.path(name), out);
        EXPECT_LE(read, count);
        return out;
    }

    TempFolder folder;
    PosixFileSystem files;
};

TEST_F(PosixFileSystemTest, BothSeparatorsSeparateFolders) {
    folder.makeFolder("sub");
    folder.write("sub/file", "x");
    EXPECT_TRUE(files.fileExists(folder.path() + "/sub/file"));
    EXPECT_TRUE(files.fileExists(folder.path() + "\\sub\\file"));
    EXPECT_TRUE(files.fileExists(folder.path() + "\\\\sub/\\file"));
    EXPECT_EQ(nativePath("C:\\arch/x"), "C:/arch/x");
}

TEST_F(PosixFileSystemTest, APathExistsWhenItIsNoFolder) {
    folder.write("file", "");
    folder.makeFolder("folder");
    folder.makeFifo("fifo");
    EXPECT_TRUE(files.fileExists(folder.path("file")));
    EXPECT_TRUE(files.fileExists(folder.path("fifo")));
    EXPECT_FALSE(files.fileExists(folder.path("folder")));
    EXPECT_FALSE(files.fileExists(folder.path("none")));
}

TEST_F(PosixFileSystemTest, AnyErrorCountsAsNotExisting) {
    folder.write("file", "");
    EXPECT_FALSE(files.fileExists(""));
    EXPECT_FALSE(files.fileExists(folder.path("file/below-a-file")));
    EXPECT_FALSE(files.fileExists(folder.path(std::string(5000, 'x'))));
}

TEST_F(PosixFileSystemTest, APathIsMissingWhenItIsCertainThatThereIsNoFile) {
    folder.write("file", "");
    folder.makeFolder("folder");
    EXPECT_TRUE(files.isMissing(folder.path("none")));
    EXPECT_TRUE(files.isMissing(folder.path("folder")));
    EXPECT_TRUE(files.isMissing(folder.path("file/below-a-file")));
    EXPECT_FALSE(files.isMissing(folder.path() + "\\file"));
    std::filesystem::create_symlink("ring", folder.folder() / "ring");
    EXPECT_FALSE(files.isMissing(folder.path("ring")));
    EXPECT_FALSE(files.fileExists(folder.path("ring")));
}

TEST_F(PosixFileSystemTest, DeletesFilesOnly) {
    folder.write("file", "");
    folder.makeFolder("folder");
    EXPECT_TRUE(files.deleteFile(folder.path() + "\\file"));
    EXPECT_FALSE(folder.exists("file"));
    EXPECT_FALSE(files.deleteFile(folder.path("file")));
    EXPECT_FALSE(files.deleteFile(folder.path("folder")));
    EXPECT_TRUE(folder.exists("folder"));
}

TEST_F(PosixFileSystemTest, TheLengthIsKnownBeforeReading) {
    folder.write("file", "abcdef");
    EXPECT_EQ(files.openForReading(folder.path("file"))->length(), 6u);
}

TEST_F(PosixFileSystemTest, ReadingLeavesAloneWhatTheFileDoesNotReach) {
    folder.write("file", "abc");
    std::string out(5, '.');
    EXPECT_EQ(files.openForReading(folder.path("file"))->read(out), 3u);
    EXPECT_EQ(out, "abc..");
    EXPECT_EQ(readStart("file", 5), "abc..");
    EXPECT_EQ(readStart("file", 2), "ab");
}

TEST_F(PosixFileSystemTest, ReadingTheStartOfAMissingFileMakesAnEmptyOne) {
    EXPECT_EQ(readStart("new", 3), "...");
    EXPECT_TRUE(folder.exists("new"));
    EXPECT_EQ(folder.read("new"), "");
}

TEST_F(PosixFileSystemTest, WritingTheStartKeepsTheRest) {
    folder.write("file", "abcdef");
    files.writeStart(folder.path("file"), std::string("XY"));
    EXPECT_EQ(folder.read("file"), "XYcdef");
}

TEST_F(PosixFileSystemTest, WritingGrowsAShorterFileAndMakesAMissingOne) {
    folder.write("short", "a");
    files.writeStart(folder.path("short"), std::string("XYZ"));
    files.writeStart(folder.path("new"), std::string("XYZ"));
    EXPECT_EQ(folder.read("short"), "XYZ");
    EXPECT_EQ(folder.read("new"), "XYZ");
}

TEST_F(PosixFileSystemTest, WritingKeepsTheFileItself) {
    folder.write("file", "abc");
    std::filesystem::create_hard_link(folder.path("file"), folder.path("same"));
    files.writeStart(folder.path("file"), std::string("XYZ"));
    EXPECT_EQ(folder.read("same"), "XYZ");
}

TEST_F(PosixFileSystemTest, WhatIsNoFileIsRefusedWithoutHanging) {
    folder.makeFolder("folder");
    folder.makeFifo("fifo");
    std::array<char, 4> buffer{};
    for (const std::string name : {"folder", "fifo", "none/file"}) {
        EXPECT_THROW(files.openForReading(folder.path(name)), FileError) << name;
        EXPECT_THROW(files.readStart(folder.path(name), buffer), FileError) << name;
        EXPECT_THROW(files.writeStart(folder.path(name), buffer), FileError) << name;
    }
}

TEST_F(PosixFileSystemTest, TheErrorNamesTheCause) {
    folder.write("locked", "x");
    const LockHolder other(folder.path("locked"), Lock::flockExclusive);
    try {
        files.openForReading(folder.path("locked"));
        FAIL() << "a locked file was opened";
    } catch (const FileError& error) {
        EXPECT_STREQ(error.what(), "il file è bloccato da un altro programma");
    }
}

TEST_F(PosixFileSystemTest, ReadingDoesNotKeepAFileLocked) {
    folder.write("file", "x");
    files.openForReading(folder.path("file"));
    EXPECT_NO_THROW(LockHolder(folder.path("file"), Lock::flockExclusive));
}

TEST(SystemClockTest, TodayIsTheDayOfTheLocalTimeZone) {
    const char* before = ::getenv("TZ");
    const std::string saved = before == nullptr ? "" : before;
    const SystemClock clock;
    const auto todayIn = [&](const char* zone) {
        ::setenv("TZ", zone, 1);
        ::tzset();
        return std::chrono::sys_days(clock.today());
    };
    // The two zones lie 26 hours apart, so that their days always differ.
    const auto west = todayIn("West12");
    const auto east = todayIn("East-14");
    before == nullptr ? ::unsetenv("TZ") : ::setenv("TZ", saved.c_str(), 1);
    ::tzset();
    EXPECT_GE((east - west).count(), 1);
    EXPECT_LE((east - west).count(), 2);
}

} // namespace
} // namespace planner::test
