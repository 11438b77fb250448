// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"
#include "ipc_fixture.h"

#include <atomic>
#include <cerrno>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

namespace planner::ipctest {
namespace {

namespace fs = std::filesystem;

// What errno says after each failure.
class ErrorTest : public IpcTest {
protected:
    void expectEveryCallFails(const std::string& name, int error) {
        Actor actor;
        EXPECT_EQ(actor.create(name), 0);
        EXPECT_EQ(actor.error(), error);
        Actor other; // that no creation has been refused to
        EXPECT_EQ(other.set(name), 0);
        EXPECT_EQ(other.error(), error);
        EXPECT_EQ(other.wait(name), 0);
        EXPECT_EQ(other.error(), error);
    }
};

// The error number after a call in this process; 0 when it was done.
int errorOf(int (*call)(const char*), const char* name) {
    errno = 0;
    return call(name) == 0 ? errno : 0;
}

TEST_F(ErrorTest, NullName) {
    EXPECT_EQ(errorOf(TvIpcCreazioneEvento, nullptr), EINVAL);
    EXPECT_EQ(errorOf(TvIpcSetEvento, nullptr), EINVAL);
    EXPECT_EQ(errorOf(TvIpcWaitEvento, nullptr), EINVAL);
    EXPECT_EQ(errorOf(TvIpcRimozioneEvento, nullptr), EINVAL);
}

TEST_F(ErrorTest, NameThatIsTooLong) {
    const std::string name(253, 'n');
    expectEveryCallFails(name, ENAMETOOLONG);
    EXPECT_EQ(errorOf(TvIpcRimozioneEvento, name.c_str()), ENAMETOOLONG);
}

TEST_F(ErrorTest, FolderThatIsNotPrivate) {
    fs::create_directory(eventFolder());
    ASSERT_EQ(chmod(eventFolder().c_str(), 0755), 0);
    expectEveryCallFails("EV", EACCES);
}

TEST_F(ErrorTest, FileInPlaceOfTheFolder) {
    ASSERT_EQ(mknod(eventFolder().c_str(), S_IFREG | 0600, 0), 0);
    expectEveryCallFails("EV", ENOTDIR);
}

TEST_F(ErrorTest, FolderInPlaceOfTheEvent) {
    fs::create_directories(eventFile("EV"));
    ASSERT_EQ(chmod(eventFolder().c_str(), 0700), 0);
    Actor actor;
    EXPECT_EQ(actor.create("EV"), 0);
    EXPECT_EQ(actor.error(), EISDIR);
    Actor other;
    EXPECT_EQ(other.wait("EV"), 0);
    EXPECT_EQ(other.error(), EISDIR);
    EXPECT_EQ(other.set("EV"), 0);
    EXPECT_EQ(other.error(), ESRCH);
}

TEST_F(ErrorTest, NoDescriptors) {
    Child child([] {
        const rlimit none{0, 0};
        setrlimit(RLIMIT_NOFILE, &none);
        const bool told = errorOf(TvIpcSetEvento, "EV") == EMFILE &&
                          errorOf(TvIpcWaitEvento, "EV") == EMFILE &&
                          errorOf(TvIpcCreazioneEvento, "EV") == EMFILE;
        return told ? 0 : 1;
    });
    EXPECT_EQ(child.exitCode(), 0);
}

TEST_F(ErrorTest, CreationOfAnothersEvent) {
    Actor owner;
    Actor second;
    ASSERT_EQ(owner.create("EV"), 1);
    EXPECT_EQ(second.create("EV"), 0);
    EXPECT_EQ(second.error(), EADDRINUSE);
}

TEST_F(ErrorTest, SignalWithoutALivingCreator) {
    Actor planner;
    Actor host;
    EXPECT_EQ(host.set("EV"), 0);
    EXPECT_EQ(host.error(), ESRCH);
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    planner.kill();
    EXPECT_EQ(host.set("EV"), 0);
    EXPECT_EQ(host.error(), ESRCH);
}

TEST_F(ErrorTest, SignalAfterTheRemoval) {
    Actor planner;
    Actor host;
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    ASSERT_EQ(planner.remove("EV"), 1);
    EXPECT_EQ(host.set("EV"), 0);
    EXPECT_EQ(host.error(), ESRCH);
}

TEST_F(ErrorTest, RemovalByAnotherThanTheCreator) {
    Actor planner;
    Actor host;
    EXPECT_EQ(host.remove("EV"), 0);
    EXPECT_EQ(host.error(), EPERM);
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    EXPECT_EQ(host.remove("EV"), 0);
    EXPECT_EQ(host.error(), EPERM);
}

// Removes the event beside a wait, and gives that wait's error.
int removedBesideAWait() {
    TvIpcCreazioneEvento("EV");
    std::atomic<int> error{0};
    std::thread waiting([&error] { error = errorOf(TvIpcWaitEvento, "EV"); });
    TvIpcWaitEvento("NOW");
    TvIpcRimozioneEvento("EV");
    waiting.join();
    return error;
}

TEST_F(ErrorTest, WaitWhoseEventThisProcessRemoves) {
    Actor other;
    Child process(removedBesideAWait);
    ASSERT_TRUE(process.fallsAsleep(2));
    ASSERT_EQ(other.create("NOW"), 1);
    ASSERT_EQ(other.set("NOW"), 1);
    EXPECT_EQ(process.exitCode(), ECANCELED);
}

} // namespace
} // namespace planner::ipctest
