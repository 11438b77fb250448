// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/readers.h"
#include "platform/posix/lock_holder.h"
#include "platform/system/system_file_system.h"
#include "ports/runtime_errors.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

class LockedFilesTest : public testing::Test {
protected:
    LockedFilesTest() { folder.write("file", std::string(125, 'x')); }

    TempFolder folder;
    SystemFileSystem files;
};

TEST_F(LockedFilesTest, AFileLockedByAnotherProgramIsAnErrorThatNamesTheCause) {
    for (const Lock lock : {Lock::flockExclusive, Lock::recordWrite, Lock::ofdWrite}) {
        const LockHolder other(folder.path("file"), lock);
        try {
            files.openForReading(folder.path("file"));
            ADD_FAILURE() << "a locked file was opened: " << static_cast<int>(lock);
        } catch (const FileError& error) {
            EXPECT_STREQ(error.what(), "il file è bloccato da un altro programma");
        }
    }
    EXPECT_NO_THROW(files.openForReading(folder.path("file")));
}

TEST_F(LockedFilesTest, AnotherReadersLockDoesNotMatter) {
    for (const Lock lock : {Lock::flockShared, Lock::recordRead}) {
        const LockHolder other(folder.path("file"), lock);
        EXPECT_NO_THROW(files.openForReading(folder.path("file"))) << static_cast<int>(lock);
    }
}

TEST_F(LockedFilesTest, ALockedArchiveIsAnErrorAndIsReadAfterwards) {
    Archivi archivi;
    const std::string path = folder.path("file");
    for (const auto read : {readRighePlanner, readCollaboratori, readRigheGrafici, readPlannerAnnuale}) {
        {
            const LockHolder other(path, Lock::flockExclusive);
            EXPECT_THROW(read(files, path, archivi), FileError);
        }
        EXPECT_NO_THROW(read(files, path, archivi));
    }
}

TEST_F(LockedFilesTest, PeekingAsksForNoLock) {
    const LockHolder other(folder.path("file"), Lock::flockExclusive);
    std::string out(3, '.');
    EXPECT_EQ(SystemFileSystem::peekStart(folder.path("file"), out), 3u);
}

TEST_F(LockedFilesTest, ReadingDoesNotKeepAFileLocked) {
    files.openForReading(folder.path("file"));
    EXPECT_NO_THROW(LockHolder(folder.path("file"), Lock::flockExclusive));
}

} // namespace
} // namespace planner::test
