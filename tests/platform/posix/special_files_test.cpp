// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/readers.h"
#include "host/ftavtrmpl.h"
#include "platform/posix/native_path.h"
#include "platform/system/system_file_system.h"
#include "ports/runtime_errors.h"
#include "support/fifo.h"
#include "support/host_fixture.h"
#include "support/temp_folder.h"

#include <array>
#include <gmock/gmock.h>
#include <unistd.h>

namespace planner::test {
namespace {

/// What may stand in a file's place here besides files and folders.
class SpecialFilesTest : public HostFixture {
protected:
    SpecialFilesTest() { makeFifo(folder.path("fifo")); }

    TempFolder folder;
    SystemFileSystem disk;
};

TEST(NativePathTest, BackslashesBecomeSlashes) {
    EXPECT_EQ(nativePath("C:\\arch/x"), "C:/arch/x");
}

TEST_F(SpecialFilesTest, AFifoIsThere) {
    EXPECT_TRUE(disk.fileExists(folder.path("fifo")));
}

TEST_F(SpecialFilesTest, ARingOfLinksIsNeitherThereNorCertainlyMissing) {
    std::filesystem::create_symlink("ring", folder.folder() / "ring");
    EXPECT_FALSE(disk.isMissing(folder.path("ring")));
    EXPECT_FALSE(disk.fileExists(folder.path("ring")));
}

TEST_F(SpecialFilesTest, AFifoIsRefusedWithoutHanging) {
    std::array<char, 4> buffer{};
    EXPECT_THROW(disk.openForReading(folder.path("fifo")), FileError);
    EXPECT_THROW(disk.readStart(folder.path("fifo"), buffer), FileError);
    EXPECT_THROW(SystemFileSystem::peekStart(folder.path("fifo"), buffer), FileError);
    EXPECT_THROW(disk.writeStart(folder.path("fifo"), buffer), FileError);
}

TEST_F(SpecialFilesTest, AFifoAsAnArchiveIsAnErrorAndDoesNotHang) {
    Archivi archivi;
    for (const auto read : {readRighePlanner, readCollaboratori, readRigheGrafici, readPlannerAnnuale}) {
        EXPECT_THROW(read(disk, folder.path("fifo"), archivi), FileError);
    }
}

TEST_F(SpecialFilesTest, AFifoAsTransitFileIsSaidAndEndsTheConversation) {
    mtavtrmpl link = makeLink(folder.path("fifo") + " 1 EV", {disk, messaggi});
    EXPECT_FALSE(makeConversation(link).eventLoop());
    EXPECT_THAT(messageTexts(),
                testing::ElementsAre("Attenzione ! Problemi con il file di transito " + folder.path("fifo")));
}

TEST_F(SpecialFilesTest, AFileWithoutReadPermissionIsAnError) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "the superuser reads every file";
    }
    folder.write("file", "x");
    std::filesystem::permissions(folder.path("file"), std::filesystem::perms::none);
    EXPECT_THROW(disk.openForReading(folder.path("file")), FileError);
}

} // namespace
} // namespace planner::test
