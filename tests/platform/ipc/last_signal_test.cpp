// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"
#include "ipc_fixture.h"
#include "platform/event/event_steps.h"

#include <atomic>
#include <cerrno>
#include <thread>
#include <vector>

namespace planner::ipctest {
namespace {

class LastSignalTest : public IpcTest {
protected:
    Actor planner;
    Actor host;
};

TEST_F(LastSignalTest, LateHostTakesTheLastSignalOnce) {
    leaveLastSignal();
    EXPECT_EQ(host.wait("EV"), 1);
    EXPECT_EQ(eventFiles(), 0);
    host.beginWait("EV");
    EXPECT_TRUE(host.isWaiting());
    ASSERT_EQ(planner.create("EV"), 1);
    EXPECT_TRUE(host.isWaiting());
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
}

TEST_F(LastSignalTest, OnlyOneOfTwoLateHostsTakesTheLastSignal) {
    Actor other;
    leaveLastSignal();
    EXPECT_EQ(host.wait("EV"), 1);
    other.beginWait("EV");
    EXPECT_TRUE(other.isWaiting());
}

TEST_F(LastSignalTest, NothingCanBeSignalledBesideAnUntakenLastSignal) {
    leaveLastSignal();
    EXPECT_EQ(host.set("EV"), 0);
    EXPECT_EQ(host.wait("EV"), 1);
}

// Ends with 0 when the wait of a thread, begun before the host's signal or after it, brings what it must.
int removeBesideASignal() {
    TvIpcCreazioneEvento("EV");
    std::atomic<int> taken{0};
    std::atomic<int> cancelled{0};
    std::vector<std::thread> waits;
    for (int i = 0; i < 3; ++i) {
        waits.emplace_back([&] {
            const bool done = TvIpcWaitEvento("EV") == 1;
            taken += done ? 1 : 0;
            cancelled += !done && errno == ECANCELED ? 1 : 0;
        });
    }
    TvIpcWaitEvento("NOW");
    TvIpcRimozioneEvento("EV");
    for (std::thread& wait : waits) {
        wait.join();
    }
    return taken == 1 && cancelled == 2 ? 0 : 1;
}

// The signals come while the process is stopped: it cannot take the one before it removes the event.
TEST_F(LastSignalTest, WaitOfTheCreatorTakesWhatWasSignalledBeforeTheRemoval) {
    for (int round = 0; round < 50; ++round) {
        Child process(removeBesideASignal);
        ASSERT_TRUE(process.fallsAsleep(4));
        ASSERT_EQ(host.create("NOW"), 1);
        process.stop();
        ASSERT_EQ(host.set("EV"), 1);
        ASSERT_EQ(host.set("NOW"), 1);
        process.goOn();
        EXPECT_EQ(process.exitCode(), 0) << "round " << round;
        ASSERT_EQ(host.remove("NOW"), 1);
    }
    EXPECT_EQ(eventFiles(), 0);
}

TEST_F(LastSignalTest, HostIsToldNothingOfARemovalWhoseCreatorStillTakesItsSignal) {
    Child process(removeBesideASignal);
    ASSERT_TRUE(process.fallsAsleep(4));
    Actor starter;
    ASSERT_EQ(starter.create("NOW"), 1);
    process.stop();
    ASSERT_EQ(host.set("EV"), 1);
    host.beginWait("EV");
    ASSERT_TRUE(host.sleeps());
    ASSERT_EQ(starter.set("NOW"), 1);
    process.goOn();
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_TRUE(host.staysWaiting());
}

} // namespace
} // namespace planner::ipctest
