// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"
#include "ipc_fixture.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace planner::ipctest {
namespace {

namespace fs = std::filesystem;

constexpr uid_t NOBODY = 65534;

class FolderTest : public IpcTest {
protected:
    static mode_t modeOf(const fs::path& path) {
        struct stat status {};
        return lstat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
    }

    void expectEveryCallRefused(int error) {
        Actor actor; // a fresh one: no call has been refused to it
        EXPECT_EQ(actor.set("EV"), 0);
        EXPECT_EQ(actor.error(), error);
        EXPECT_EQ(actor.wait("EV"), 0);
        EXPECT_EQ(actor.error(), error);
        EXPECT_EQ(actor.create("EV"), 0);
        EXPECT_EQ(actor.error(), error);
        EXPECT_EQ(actor.remove("EV"), 0);
        EXPECT_EQ(actor.error(), EPERM);
    }

    // Planner and host meet under a name that no one else uses.
    void expectMeeting() {
        const std::string name = "folder-test-" + std::to_string(getpid());
        Actor planner;
        Actor host;
        ASSERT_EQ(planner.create(name), 1);
        ASSERT_EQ(planner.set(name), 1);
        EXPECT_EQ(host.wait(name), 1);
        EXPECT_EQ(planner.remove(name), 1);
    }
};

TEST_F(FolderTest, FolderAndEventsArePrivateWhateverTheMask) {
    for (const mode_t mask : {0U, 022U, 077U}) {
        const mode_t before = umask(mask);
        Actor planner;
        umask(before);
        ASSERT_EQ(planner.create("EV"), 1);
        EXPECT_EQ(modeOf(eventFolder()), 0700U);
        EXPECT_EQ(modeOf(eventFile("EV")), 0600U);
        fs::remove_all(eventFolder());
    }
}

TEST_F(FolderTest, MaskThatForbidsTheOwnerDoesNotHarmTheEvents) {
    fs::create_directory(eventFolder());
    chmod(eventFolder().c_str(), 0700);
    const mode_t before = umask(0777);
    Actor planner;
    Actor host;
    umask(before);
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.wait("EV"), 1);
    EXPECT_EQ(modeOf(eventFile("EV")), 0600U);
}

TEST_F(FolderTest, FolderOpenToOthersIsRefused) {
    for (const mode_t mode : {0777U, 0755U, 0710U, 0701U, 0720U, 0500U}) {
        fs::create_directory(eventFolder());
        ASSERT_EQ(chmod(eventFolder().c_str(), mode), 0);
        expectEveryCallRefused(EACCES);
        chmod(eventFolder().c_str(), 0700);
        EXPECT_EQ(eventFiles(), 0);
        fs::remove_all(eventFolder());
    }
}

TEST_F(FolderTest, LinkInPlaceOfTheFolderIsRefused) {
    const fs::path elsewhere = runtimeFolder() / "elsewhere";
    fs::create_directory(elsewhere);
    chmod(elsewhere.c_str(), 0700);
    fs::create_directory_symlink(elsewhere, eventFolder());
    expectEveryCallRefused(ENOTDIR);
    EXPECT_TRUE(fs::is_empty(elsewhere));
}

TEST_F(FolderTest, FileInPlaceOfTheFolderIsRefused) {
    ASSERT_EQ(mknod(eventFolder().c_str(), S_IFREG | 0600, 0), 0);
    expectEveryCallRefused(ENOTDIR);
}

TEST_F(FolderTest, FolderOfAnotherOwnerIsRefused) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can give a folder away";
    }
    fs::create_directory(eventFolder());
    chmod(eventFolder().c_str(), 0700);
    ASSERT_EQ(chown(eventFolder().c_str(), NOBODY, NOBODY), 0);
    expectEveryCallRefused(EACCES);
}

TEST_F(FolderTest, WithoutARunTimeFolderThePlaceIsUnderTmp) {
    const fs::path fallback = "/tmp/tavterm-ipc-" + std::to_string(geteuid());
    const bool existed = fs::exists(fallback);
    unsetenv("XDG_RUNTIME_DIR");
    expectMeeting();
    EXPECT_EQ(modeOf(fallback), 0700U);
    setenv("XDG_RUNTIME_DIR", "", 1);
    expectMeeting();
    if (!existed) {
        rmdir(fallback.c_str());
    }
}

TEST_F(FolderTest, RunTimeFolderThatIsNamedIsTheOnlyPlace) {
    const std::vector<std::pair<const char*, int>> unusable{
        {"relative", EINVAL}, {"/nonexistent/folder", ENOENT}, {"/proc/self/status", ENOTDIR}};
    for (const auto& [path, error] : unusable) {
        setenv("XDG_RUNTIME_DIR", path, 1);
        expectEveryCallRefused(error);
    }
}

TEST_F(FolderTest, RunTimeFolderOfAnotherOwnerIsRefused) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can give a folder away";
    }
    ASSERT_EQ(chown(runtimeFolder().c_str(), NOBODY, NOBODY), 0);
    expectEveryCallRefused(EACCES);
    EXPECT_TRUE(fs::is_empty(runtimeFolder()));
}

TEST_F(FolderTest, RunTimeFolderThatCannotBeWrittenIsRefused) {
    // Nobody can make a folder there, whatever his rights.
    setenv("XDG_RUNTIME_DIR", "/proc/self", 1);
    expectEveryCallRefused(geteuid() == 0 ? ENOENT : EACCES);
}

// Runs as another user, who signals and waits under the same name; fails when the wait is released.
int asNobody() {
    if (setgid(NOBODY) != 0 || setuid(NOBODY) != 0) {
        return 2;
    }
    if (TvIpcSetEvento("folder-test-users") != 0 || errno != EACCES) {
        return 3;
    }
    unsetenv("XDG_RUNTIME_DIR");
    if (TvIpcSetEvento("folder-test-users") != 0 || errno != ESRCH) {
        return 5;
    }
    // The wait must sleep until the alarm ends this process.
    std::signal(SIGALRM, [](int) { _exit(0); });
    ualarm(100000, 0);
    TvIpcWaitEvento("folder-test-users");
    return 4;
}

TEST_F(FolderTest, UsersDoNotMeet) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can become another user";
    }
    const fs::path theirs = "/tmp/tavterm-ipc-" + std::to_string(NOBODY);
    const bool existed = fs::exists(theirs);
    // Open to all, as the run-time folder of another user never is: the owner alone must keep them apart.
    chmod(runtimeFolder().c_str(), 0777);
    Actor planner;
    ASSERT_EQ(planner.create("folder-test-users"), 1);
    ASSERT_EQ(planner.set("folder-test-users"), 1);
    EXPECT_EQ(Child(asNobody).exitCode(), 0);
    Actor host;
    EXPECT_EQ(host.wait("folder-test-users"), 1);
    fs::remove(theirs / "ev-folder-test-users");
    if (!existed) {
        rmdir(theirs.c_str());
    }
}

// How many descriptors a program started by this process would get, beyond the standard ones.
int inheritableDescriptors() {
    int count = 0;
    for (int descriptor = 3; descriptor < 256; ++descriptor) {
        const int flags = fcntl(descriptor, F_GETFD);
        count += flags >= 0 && (flags & FD_CLOEXEC) == 0 ? 1 : 0;
    }
    return count;
}

TEST_F(FolderTest, DescriptorsAreNotInheritedByStartedPrograms) {
    Actor planner;
    ASSERT_EQ(planner.create("THEIRS"), 1);
    Child process([] {
        const int before = inheritableDescriptors();
        const bool opened = TvIpcCreazioneEvento("OWN") == 1 && TvIpcSetEvento("THEIRS") == 1;
        return opened && inheritableDescriptors() == before ? 0 : 1;
    });
    EXPECT_EQ(process.exitCode(), 0);
}

int withoutDescriptors() {
    if (TvIpcCreazioneEvento("BEFORE") != 1 || TvIpcCreazioneEvento("QUIET") != 1) {
        return 1;
    }
    const rlimit none{0, 0};
    setrlimit(RLIMIT_NOFILE, &none);
    if (TvIpcCreazioneEvento("EV") + TvIpcSetEvento("EV") + TvIpcWaitEvento("EV") != 0) {
        return 2;
    }
    return TvIpcSetEvento("BEFORE") == 1 && TvIpcRimozioneEvento("BEFORE") == 1 &&
                   TvIpcRimozioneEvento("QUIET") == 1
               ? 0
               : 3;
}

TEST_F(FolderTest, CallsFailWithoutDescriptorsAndOpenEventsGoOn) {
    EXPECT_EQ(Child(withoutDescriptors).exitCode(), 0);
    Actor host;
    EXPECT_EQ(host.wait("BEFORE"), 1);
    // The name of the other one could not be freed: whoever comes next does it.
    EXPECT_EQ(eventFiles(), 1);
    EXPECT_EQ(host.set("QUIET"), 0);
    host.beginWait("QUIET");
    EXPECT_TRUE(host.isWaiting());
    Actor planner;
    ASSERT_EQ(planner.create("QUIET"), 1);
    ASSERT_EQ(planner.set("QUIET"), 1);
    EXPECT_EQ(host.result(), 1);
    EXPECT_EQ(planner.remove("QUIET"), 1);
    EXPECT_EQ(eventFiles(), 0);
}

} // namespace
} // namespace planner::ipctest
