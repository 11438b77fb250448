// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ipc_fixture.h"

#include <array>

namespace planner::ipctest {
namespace {

class SignalTest : public IpcTest {
protected:
    Actor planner;
    Actor host;
};

TEST_F(SignalTest, SignalOfTheCreatorBeforeTheWaitIsKept) {
    ASSERT_EQ(planner.create("EV"), 1);
    EXPECT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.wait("EV"), 1);
}

TEST_F(SignalTest, SignalOfTheHostBeforeTheWaitIsKept) {
    ASSERT_EQ(planner.create("EV"), 1);
    EXPECT_EQ(host.set("EV"), 1);
    EXPECT_EQ(planner.wait("EV"), 1);
}

TEST_F(SignalTest, WaitOfTheHostEndsWithTheSignal) {
    ASSERT_EQ(planner.create("EV"), 1);
    host.beginWait("EV");
    ASSERT_TRUE(host.isWaiting());
    EXPECT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
}

TEST_F(SignalTest, WaitOfTheCreatorEndsWithTheSignal) {
    ASSERT_EQ(planner.create("EV"), 1);
    planner.beginWait("EV");
    ASSERT_TRUE(planner.isWaiting());
    EXPECT_EQ(host.set("EV"), 1);
    EXPECT_EQ(planner.result(), 1);
}

TEST_F(SignalTest, CreatorDoesNotTakeItsOwnSignal) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    planner.beginWait("EV");
    EXPECT_TRUE(planner.isWaiting());
    EXPECT_EQ(host.wait("EV"), 1);
    EXPECT_TRUE(planner.isWaiting());
    EXPECT_EQ(host.set("EV"), 1);
    EXPECT_EQ(planner.result(), 1);
}

TEST_F(SignalTest, HostDoesNotTakeItsOwnSignal) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    host.beginWait("EV");
    EXPECT_TRUE(host.isWaiting());
    EXPECT_EQ(planner.wait("EV"), 1);
    EXPECT_TRUE(host.isWaiting());
    EXPECT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
}

TEST_F(SignalTest, AnotherHostDoesNotTakeTheSignalOfAHost) {
    Actor other;
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    other.beginWait("EV");
    EXPECT_TRUE(other.isWaiting());
    EXPECT_EQ(planner.wait("EV"), 1);
}

TEST_F(SignalTest, AtMostOneSignalToTheHostIsPending) {
    ASSERT_EQ(planner.create("EV"), 1);
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(planner.set("EV"), 1);
    }
    EXPECT_EQ(host.wait("EV"), 1);
    host.beginWait("EV");
    EXPECT_TRUE(host.isWaiting());
}

TEST_F(SignalTest, AtMostOneSignalToTheCreatorIsPending) {
    ASSERT_EQ(planner.create("EV"), 1);
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(host.set("EV"), 1);
    }
    EXPECT_EQ(planner.wait("EV"), 1);
    planner.beginWait("EV");
    EXPECT_TRUE(planner.isWaiting());
}

TEST_F(SignalTest, BothDirectionsCanBePendingAtOnce) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    EXPECT_EQ(planner.wait("EV"), 1);
    EXPECT_EQ(host.wait("EV"), 1);
}

TEST_F(SignalTest, OneSignalReleasesOneWait) {
    std::array<Actor, 4> hosts;
    ASSERT_EQ(planner.create("EV"), 1);
    for (Actor& each : hosts) {
        each.beginWait("EV");
        ASSERT_TRUE(each.sleeps());
    }
    std::size_t waiting = hosts.size();
    for (std::size_t signals = 1; signals <= hosts.size(); ++signals) {
        ASSERT_EQ(planner.set("EV"), 1);
        ASSERT_TRUE(comesTrue([&] {
            waiting = 0;
            for (Actor& each : hosts) {
                waiting += each.sleeps() ? 1 : 0;
            }
            return waiting <= hosts.size() - signals;
        }));
        waiting = 0;
        for (Actor& each : hosts) {
            waiting += each.isWaiting() ? 1 : 0;
        }
        EXPECT_EQ(waiting, hosts.size() - signals);
    }
}

TEST_F(SignalTest, WaitBeforeTheCreationWaitsForTheSignalToo) {
    host.beginWait("EV");
    ASSERT_TRUE(host.isWaiting());
    ASSERT_EQ(planner.create("EV"), 1);
    EXPECT_TRUE(host.isWaiting());
    EXPECT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
}

TEST_F(SignalTest, SignalBeforeTheCreationIsRefusedAndNotKept) {
    EXPECT_EQ(host.set("EV"), 0);
    host.beginWait("EV");
    ASSERT_TRUE(host.sleeps());
    Actor other;
    EXPECT_EQ(other.set("EV"), 0);
    ASSERT_EQ(planner.create("EV"), 1);
    planner.beginWait("EV");
    EXPECT_TRUE(planner.isWaiting());
    EXPECT_TRUE(host.isWaiting());
}

TEST_F(SignalTest, CreatingAgainKeepsTheState) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    EXPECT_EQ(planner.create("EV"), 1);
    EXPECT_EQ(host.wait("EV"), 1);
    EXPECT_EQ(planner.wait("EV"), 1);
}

TEST_F(SignalTest, ASecondCreatorIsRefusedWhileTheFirstLives) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.create("EV"), 0);
    EXPECT_EQ(host.create("EV"), 0);
    Actor other;
    EXPECT_EQ(other.wait("EV"), 1);
}

TEST_F(SignalTest, EventsOfDifferentNamesDoNotMeet) {
    ASSERT_EQ(planner.create("A"), 1);
    ASSERT_EQ(planner.create("B"), 1);
    ASSERT_EQ(planner.set("A"), 1);
    host.beginWait("B");
    EXPECT_TRUE(host.isWaiting());
    ASSERT_EQ(planner.set("B"), 1);
    EXPECT_EQ(host.result(), 1);
    EXPECT_EQ(host.wait("A"), 1);
}

TEST_F(SignalTest, TwoProcessesCanCreateForEachOther) {
    ASSERT_EQ(planner.create("A"), 1);
    ASSERT_EQ(host.create("B"), 1);
    ASSERT_EQ(planner.set("A"), 1);
    ASSERT_EQ(host.set("B"), 1);
    EXPECT_EQ(host.wait("A"), 1);
    EXPECT_EQ(planner.wait("B"), 1);
}

} // namespace
} // namespace planner::ipctest
