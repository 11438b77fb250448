// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"
#include "ipc_fixture.h"

#include <array>
#include <thread>
#include <unistd.h>

namespace planner::ipctest {
namespace {

class ForkTest : public IpcTest {};

// Runs `body` in a child of the calling process, which is a child of the test itself.
int inGrandChild(const std::function<int()>& body) {
    Child child(body);
    return child.exitCode().value_or(99);
}

TEST_F(ForkTest, ChildOfTheCreatorIsTheOtherSide) {
    Child creator([] {
        TvIpcCreazioneEvento("EV");
        TvIpcSetEvento("EV");
        const int taken = inGrandChild([] { return TvIpcWaitEvento("EV") == 1 ? 0 : 1; });
        const int signalled = inGrandChild([] { return TvIpcSetEvento("EV") == 1 ? 0 : 1; });
        return taken == 0 && signalled == 0 && TvIpcWaitEvento("EV") == 1 ? 0 : 1;
    });
    EXPECT_EQ(creator.exitCode(), 0);
}

TEST_F(ForkTest, ChildOfTheCreatorCanNeitherRemoveNorCreate) {
    Child creator([] {
        TvIpcCreazioneEvento("EV");
        return inGrandChild([] { return TvIpcRimozioneEvento("EV") + TvIpcCreazioneEvento("EV"); });
    });
    EXPECT_EQ(creator.exitCode(), 0);
}

TEST_F(ForkTest, ChildOfTheRemoverTakesItsLastSignal) {
    Child creator([] {
        TvIpcCreazioneEvento("EV");
        TvIpcSetEvento("EV");
        TvIpcRimozioneEvento("EV");
        return inGrandChild([] { return TvIpcWaitEvento("EV") == 1 ? 0 : 1; });
    });
    EXPECT_EQ(creator.exitCode(), 0);
}

TEST_F(ForkTest, ChildThatEndsLeavesTheCreatorInPlace) {
    Child creator([] {
        TvIpcCreazioneEvento("EV");
        inGrandChild([] { return TvIpcSetEvento("EV"); });
        inGrandChild([] { return 0; });
        const int refused = inGrandChild([] { return TvIpcCreazioneEvento("EV"); });
        return refused == 0 && TvIpcSetEvento("EV") == 1 && TvIpcRimozioneEvento("EV") == 1 ? 0 : 1;
    });
    EXPECT_EQ(creator.exitCode(), 0);
}

// A thread waits meanwhile; it is not in the child, and neither is what it waits for.
int forkBesideAWait() {
    const int before = openDescriptors();
    std::thread([] { TvIpcWaitEvento("EV"); }).detach();
    TvIpcWaitEvento("NOW");
    const int kept = inGrandChild([] { return openDescriptors(); });
    return kept == before && openDescriptors() > before ? 0 : 1;
}

TEST_F(ForkTest, ChildKeepsNothingOfAWaitUnderWay) {
    Actor planner;
    Child process(forkBesideAWait);
    ASSERT_TRUE(process.fallsAsleep(2));
    ASSERT_EQ(planner.create("NOW"), 1);
    ASSERT_EQ(planner.set("NOW"), 1);
    EXPECT_EQ(process.exitCode(), 0);
}

// Forks a process that lives until the other end of the pipe is closed, and ends before it does.
int leaveSurvivor(int readEnd, int writeEnd) {
    TvIpcCreazioneEvento("EV");
    TvIpcSetEvento("EV");
    if (fork() == 0) {
        close(writeEnd);
        char byte = 0;
        _exit(read(readEnd, &byte, 1) == 0 ? 0 : 1);
    }
    return 0;
}

TEST_F(ForkTest, ChildThatOutlivesTheCreatorDoesNotHoldTheEvent) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    Child creator([&ends] { return leaveSurvivor(ends[0], ends[1]); });
    ASSERT_EQ(creator.exitCode(), 0);
    Actor next;
    Actor host;
    EXPECT_EQ(host.set("EV"), 0);
    EXPECT_EQ(next.create("EV"), 1);
    host.beginWait("EV");
    EXPECT_TRUE(host.isWaiting());
    close(ends[0]);
    close(ends[1]);
}

} // namespace
} // namespace planner::ipctest
