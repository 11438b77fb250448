// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/system_file_system.h"
#include "ports/runtime_errors.h"
#include "support/temp_folder.h"

#include <array>
#include <gtest/gtest.h>

namespace planner::test {
namespace {

class SystemFileSystemTest : public testing::Test {
protected:
    std::string readStart(const std::string& name, std::size_t count) {
        std::string out(count, '.');
        const std::size_t read = files.readStart(folder.path(name), out);
        EXPECT_LE(read, count);
        return out;
    }

    TempFolder folder;
    SystemFileSystem files;
};

TEST_F(SystemFileSystemTest, BothSeparatorsSeparateFolders) {
    folder.makeFolder("sub");
    folder.write("sub/file", "x");
    EXPECT_TRUE(files.fileExists(folder.path() + "/sub/file"));
    EXPECT_TRUE(files.fileExists(folder.path() + "\\sub\\file"));
    EXPECT_TRUE(files.fileExists(folder.path() + "\\\\sub/\\file"));
}

TEST_F(SystemFileSystemTest, APathExistsWhenItIsNoFolder) {
    folder.write("file", "");
    folder.makeFolder("folder");
    EXPECT_TRUE(files.fileExists(folder.path("file")));
    EXPECT_FALSE(files.fileExists(folder.path("folder")));
    EXPECT_FALSE(files.fileExists(folder.path("none")));
}

TEST_F(SystemFileSystemTest, AnyErrorCountsAsNotExisting) {
    folder.write("file", "");
    EXPECT_FALSE(files.fileExists(""));
    EXPECT_FALSE(files.fileExists(folder.path("file/below-a-file")));
    EXPECT_FALSE(files.fileExists(folder.path(std::string(5000, 'x'))));
}

TEST_F(SystemFileSystemTest, APathIsMissingWhenItIsCertainThatThereIsNoFile) {
    folder.write("file", "");
    folder.makeFolder("folder");
    EXPECT_TRUE(files.isMissing(folder.path("none")));
    EXPECT_TRUE(files.isMissing(folder.path("folder")));
    EXPECT_TRUE(files.isMissing(folder.path("file/below-a-file")));
    EXPECT_FALSE(files.isMissing(folder.path() + "\\file"));
}

TEST_F(SystemFileSystemTest, DeletesFilesOnly) {
    folder.write("file", "");
    folder.makeFolder("folder");
    EXPECT_TRUE(files.deleteFile(folder.path() + "\\file"));
    EXPECT_FALSE(folder.exists("file"));
    EXPECT_FALSE(files.deleteFile(folder.path("file")));
    EXPECT_FALSE(files.deleteFile(folder.path("folder")));
    EXPECT_TRUE(folder.exists("folder"));
}

TEST_F(SystemFileSystemTest, TheLengthIsKnownBeforeReading) {
    folder.write("file", "abcdef");
    EXPECT_EQ(files.openForReading(folder.path("file"))->length(), 6u);
}

TEST_F(SystemFileSystemTest, ReadingLeavesAloneWhatTheFileDoesNotReach) {
    folder.write("file", "abc");
    std::string out(5, '.');
    EXPECT_EQ(files.openForReading(folder.path("file"))->read(out), 3u);
    EXPECT_EQ(out, "abc..");
    EXPECT_EQ(readStart("file", 5), "abc..");
    EXPECT_EQ(readStart("file", 2), "ab");
}

TEST_F(SystemFileSystemTest, PeekingReadsAndNeverMakesAFile) {
    folder.write("file", "abc");
    std::string out(5, '.');
    EXPECT_EQ(SystemFileSystem::peekStart(folder.path("file"), out), 3u);
    EXPECT_EQ(out, "abc..");
    EXPECT_THROW(SystemFileSystem::peekStart(folder.path("none"), out), FileError);
    EXPECT_FALSE(folder.exists("none"));
}

TEST_F(SystemFileSystemTest, ANameMayHoldAnyLetter) {
    files.writeStart(folder.path("perché, 予定"), std::string("abc"));
    EXPECT_EQ(readStart("perché, 予定", 3), "abc");
    EXPECT_TRUE(files.fileExists(folder.path("perché, 予定")));
    EXPECT_TRUE(files.deleteFile(folder.path("perché, 予定")));
    EXPECT_TRUE(std::filesystem::is_empty(folder.folder()));
}

TEST_F(SystemFileSystemTest, ReadingTheStartOfAMissingFileMakesAnEmptyOne) {
    EXPECT_EQ(readStart("new", 3), "...");
    EXPECT_TRUE(folder.exists("new"));
    EXPECT_EQ(folder.read("new"), "");
}

TEST_F(SystemFileSystemTest, WritingTheStartKeepsTheRest) {
    folder.write("file", "abcdef");
    files.writeStart(folder.path("file"), std::string("XY"));
    EXPECT_EQ(folder.read("file"), "XYcdef");
}

TEST_F(SystemFileSystemTest, WritingGrowsAShorterFileAndMakesAMissingOne) {
    folder.write("short", "a");
    files.writeStart(folder.path("short"), std::string("XYZ"));
    files.writeStart(folder.path("new"), std::string("XYZ"));
    EXPECT_EQ(folder.read("short"), "XYZ");
    EXPECT_EQ(folder.read("new"), "XYZ");
}

TEST_F(SystemFileSystemTest, WritingKeepsTheFileItself) {
    folder.write("file", "abc");
    std::filesystem::create_hard_link(folder.path("file"), folder.path("same"));
    files.writeStart(folder.path("file"), std::string("XYZ"));
    EXPECT_EQ(folder.read("same"), "XYZ");
}

TEST_F(SystemFileSystemTest, WhatIsNoFileIsRefusedWithoutHanging) {
    folder.makeFolder("folder");
    std::array<char, 4> buffer{};
    for (const std::string name : {"folder", "none/file"}) {
        EXPECT_THROW(files.openForReading(folder.path(name)), FileError) << name;
        EXPECT_THROW(files.readStart(folder.path(name), buffer), FileError) << name;
        EXPECT_THROW(files.writeStart(folder.path(name), buffer), FileError) << name;
    }
}

} // namespace
} // namespace planner::test
