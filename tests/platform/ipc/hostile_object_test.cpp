// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ipc_fixture.h"

#include <algorithm>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace planner::ipctest {
namespace {

namespace fs = std::filesystem;

const std::string PRECIOUS = "not to be touched";

// Puts things in the place of the event "EV" that are no event, or not one to be trusted.
class HostileObjectTest : public IpcTest {
protected:
    HostileObjectTest() {
        fs::create_directory(eventFolder());
        fs::permissions(eventFolder(), fs::perms::owner_all);
        write(precious, PRECIOUS);
    }

    static void write(const fs::path& path, const std::string& content) {
        std::ofstream(path, std::ios::binary) << content;
        chmod(path.c_str(), 0600);
    }

    static std::string read(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    // The file of an event as the library writes it, with no signal pending.
    std::string eventContent() {
        Actor creator;
        EXPECT_EQ(creator.create("MODEL"), 1);
        std::string content = read(eventFile("MODEL"));
        EXPECT_EQ(creator.remove("MODEL"), 1);
        return content;
    }

    // Not the same thing with another content: `held`, still open, is no longer what stands there.
    void expectAnotherThanHeld(int held) const {
        struct stat before {};
        struct stat after {};
        ASSERT_EQ(fstat(held, &before), 0);
        ASSERT_EQ(lstat(place.c_str(), &after), 0);
        EXPECT_NE(before.st_ino, after.st_ino);
    }

    // A planner and a host get on with each other in spite of what stands there, and without it.
    void expectReplaced() {
        Actor planner;
        Actor host;
        const int held = open(place.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC);
        ASSERT_GE(held, 0);
        EXPECT_EQ(host.set("EV"), 0);
        ASSERT_EQ(planner.create("EV"), 1);
        expectAnotherThanHeld(held);
        close(held);
        host.beginWait("EV");
        EXPECT_TRUE(host.sleeps());
        EXPECT_EQ(planner.set("EV"), 1);
        EXPECT_EQ(host.result(), 1);
        EXPECT_EQ(host.set("EV"), 1);
        EXPECT_EQ(planner.wait("EV"), 1);
        EXPECT_EQ(planner.remove("EV"), 1);
        EXPECT_EQ(eventFiles(), 0);
        EXPECT_EQ(read(precious), PRECIOUS);
    }

    const fs::path precious = runtimeFolder() / "precious";
    const fs::path place = eventFile("EV");
};

TEST_F(HostileObjectTest, EmptyFileIsReplaced) {
    write(place, "");
    expectReplaced();
}

TEST_F(HostileObjectTest, FileOfAnotherSizeIsReplacedAndNotWrittenThrough) {
    write(place, PRECIOUS);
    const int held = open(place.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_GE(held, 0);
    expectReplaced();
    std::string content(64, '\0');
    content.resize(static_cast<std::size_t>(std::max<ssize_t>(::read(held, content.data(), 64), 0)));
    close(held);
    EXPECT_EQ(content, PRECIOUS);
}

TEST_F(HostileObjectTest, FileOfTheRightSizeWithAnotherContentIsReplaced) {
    const std::string garbage(eventContent().size(), '\xFF');
    write(place, garbage);
    fs::create_hard_link(place, runtimeFolder() / "kept");
    expectReplaced();
    EXPECT_EQ(read(runtimeFolder() / "kept"), garbage);
}

TEST_F(HostileObjectTest, GarbageAloneOfTheRightSizeIsReplaced) {
    write(place, std::string(eventContent().size(), '\x01'));
    expectReplaced();
}

TEST_F(HostileObjectTest, SymbolicLinkToAFileIsNotFollowed) {
    fs::create_symlink(precious, place);
    expectReplaced();
}

TEST_F(HostileObjectTest, SymbolicLinkToAnEventIsNotFollowed) {
    const std::string content = eventContent();
    write(precious, content);
    fs::create_symlink(precious, place);
    Actor planner;
    EXPECT_EQ(planner.create("EV"), 1);
    EXPECT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(read(precious), content);
}

TEST_F(HostileObjectTest, SymbolicLinkToNothingMakesNothing) {
    fs::create_symlink(runtimeFolder() / "missing", place);
    expectReplaced();
    EXPECT_FALSE(fs::exists(runtimeFolder() / "missing"));
}

TEST_F(HostileObjectTest, HardLinkOfAnEventIsNotShared) {
    const std::string content = eventContent();
    write(runtimeFolder() / "other", content);
    fs::create_hard_link(runtimeFolder() / "other", place);
    expectReplaced();
    EXPECT_EQ(read(runtimeFolder() / "other"), content);
}

TEST_F(HostileObjectTest, EventOpenToOthersIsReplaced) {
    for (const mode_t mode : {0666U, 0640U, 0604U, 0602U, 0700U, 04600U}) {
        write(place, eventContent());
        ASSERT_EQ(chmod(place.c_str(), mode), 0);
        expectReplaced();
    }
}

TEST_F(HostileObjectTest, EventOfAnotherOwnerIsReplaced) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can give a file away";
    }
    write(place, eventContent());
    ASSERT_EQ(chown(place.c_str(), 65534, 65534), 0);
    expectReplaced();
}

TEST_F(HostileObjectTest, PipeIsReplaced) {
    ASSERT_EQ(mkfifo(place.c_str(), 0600), 0);
    expectReplaced();
}

TEST_F(HostileObjectTest, SocketIsReplaced) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(place.string().size(), sizeof address.sun_path);
    place.string().copy(address.sun_path, place.string().size());
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ASSERT_EQ(bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    close(socket);
    expectReplaced();
}

TEST_F(HostileObjectTest, FolderMakesTheCallsFail) {
    fs::create_directory(place);
    write(place / "inside", PRECIOUS);
    Actor actor;
    EXPECT_EQ(actor.create("EV"), 0);
    EXPECT_EQ(actor.set("EV"), 0);
    EXPECT_EQ(actor.wait("EV"), 0);
    EXPECT_EQ(actor.remove("EV"), 0);
    EXPECT_EQ(read(place / "inside"), PRECIOUS);
    EXPECT_EQ(actor.create("OTHER"), 1);
}

TEST_F(HostileObjectTest, WaitBeforeTheCreationReplacesToo) {
    fs::create_symlink(precious, place);
    Actor planner;
    Actor host;
    host.beginWait("EV");
    ASSERT_TRUE(host.sleeps());
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
    EXPECT_EQ(read(precious), PRECIOUS);
}

TEST_F(HostileObjectTest, SignalAloneTouchesNothing) {
    fs::create_symlink(precious, place);
    Actor host;
    EXPECT_EQ(host.set("EV"), 0);
    EXPECT_TRUE(fs::is_symlink(place));
    EXPECT_EQ(read(precious), PRECIOUS);
}

} // namespace
} // namespace planner::ipctest
