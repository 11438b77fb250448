// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_steps.h"
#include "ipc_fixture.h"

namespace planner::ipctest {
namespace {

class RemovalTest : public IpcTest {
protected:
    Actor planner;
    Actor host;
};

TEST_F(RemovalTest, HostThatKnowsTheEventTakesItsLastSignal) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    ASSERT_EQ(host.wait("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    ASSERT_EQ(planner.remove("EV"), 1);
    planner.end();
    EXPECT_EQ(host.wait("EV"), 1);
    host.beginWait("EV");
    EXPECT_TRUE(host.isWaiting());
}

TEST_F(RemovalTest, SignalTakenBeforeTheRemovalIsNotTakenAgain) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    ASSERT_EQ(host.wait("EV"), 1);
    ASSERT_EQ(planner.remove("EV"), 1);
    EXPECT_EQ(eventFiles(), 0);
    host.beginWait("EV");
    EXPECT_TRUE(host.isWaiting());
}

TEST_F(RemovalTest, WaitOutlastsARemovalAndGoesOnWithTheNextCreation) {
    ASSERT_EQ(planner.create("EV"), 1);
    host.beginWait("EV");
    ASSERT_TRUE(host.sleeps());
    ASSERT_EQ(planner.remove("EV"), 1);
    EXPECT_TRUE(host.isWaiting());
    ASSERT_EQ(planner.create("EV"), 1);
    EXPECT_TRUE(host.isWaiting());
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
}

TEST_F(RemovalTest, WaitingHostIsReleasedByAPlannerThatComesAndGoesAtOnce) {
    for (int round = 0; round < 100; ++round) {
        host.beginWait("EV");
        ASSERT_TRUE(host.sleeps());
        ASSERT_NO_FATAL_FAILURE(leaveLastSignal());
        ASSERT_EQ(host.result(), 1) << "round " << round;
    }
    EXPECT_EQ(eventFiles(), 0);
}

TEST_F(RemovalTest, NewCreationDropsALastSignalThatNobodyTook) {
    leaveLastSignal();
    ASSERT_EQ(planner.create("EV"), 1);
    host.beginWait("EV");
    EXPECT_TRUE(host.isWaiting());
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
}

TEST_F(RemovalTest, RemoverDoesNotTakeItsOwnLastSignal) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    ASSERT_EQ(planner.remove("EV"), 1);
    planner.beginWait("EV");
    EXPECT_TRUE(planner.isWaiting());
    EXPECT_EQ(host.wait("EV"), 1);
    EXPECT_TRUE(planner.isWaiting());
    ASSERT_EQ(host.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    EXPECT_EQ(planner.result(), 1);
}

TEST_F(RemovalTest, SameProcessCanCreateAgain) {
    for (int round = 0; round < 3; ++round) {
        ASSERT_EQ(planner.create("EV"), 1);
        ASSERT_EQ(planner.set("EV"), 1);
        ASSERT_EQ(planner.remove("EV"), 1);
    }
    EXPECT_EQ(host.wait("EV"), 1);
    host.beginWait("EV");
    EXPECT_TRUE(host.isWaiting());
}

TEST_F(RemovalTest, OnlyTheCreatorCanRemove) {
    EXPECT_EQ(host.remove("EV"), 0);
    ASSERT_EQ(planner.create("EV"), 1);
    EXPECT_EQ(host.remove("EV"), 0);
    ASSERT_EQ(planner.set("EV"), 1);
    ASSERT_EQ(host.wait("EV"), 1);
    EXPECT_EQ(host.remove("EV"), 0);
    EXPECT_EQ(planner.remove("EV"), 1);
    EXPECT_EQ(planner.remove("EV"), 0);
}

TEST_F(RemovalTest, NothingCanBeSignalledAfterARemoval) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    ASSERT_EQ(planner.remove("EV"), 1);
    EXPECT_EQ(planner.set("EV"), 0);
    EXPECT_EQ(host.set("EV"), 0);
}

TEST_F(RemovalTest, SignalThatTheCreatorDidNotTakeEndsWithTheEvent) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    ASSERT_EQ(planner.remove("EV"), 1);
    ASSERT_EQ(planner.create("EV"), 1);
    planner.beginWait("EV");
    EXPECT_TRUE(planner.isWaiting());
}

TEST_F(RemovalTest, HostIsToldThatTheCreatorDidNotTakeItsSignal) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    ASSERT_EQ(planner.remove("EV"), 1);
    expectDeathTold(host);
}

TEST_F(RemovalTest, WaitUnderWayIsToldThatTheCreatorDidNotTakeTheSignal) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    host.beginWait("EV");
    ASSERT_TRUE(host.sleeps());
    ASSERT_EQ(planner.remove("EV"), 1);
    EXPECT_EQ(host.result(), 0);
    EXPECT_EQ(host.error(), EOWNERDEAD);
}

TEST_F(RemovalTest, ThatASignalWasNotTakenIsToldOnceAndTheNextWaitIsForTheNextCreator) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    ASSERT_EQ(planner.remove("EV"), 1);
    expectDeathTold(host);
    host.beginWait("EV");
    EXPECT_TRUE(host.staysWaiting());
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
}

TEST_F(RemovalTest, ThatASignalWasNotTakenIsToldThoughOtherEventsWereUsedMeanwhile) {
    Actor other;
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    ASSERT_EQ(planner.remove("EV"), 1);
    ASSERT_EQ(other.create("OTHER"), 1);
    ASSERT_EQ(host.set("OTHER"), 1);
    expectDeathTold(host);
}

TEST_F(RemovalTest, WholeDialogueLeavesNoFile) {
    host.beginWait("EV");
    ASSERT_TRUE(host.sleeps());
    ASSERT_EQ(planner.create("EV"), 1);
    for (int request = 0; request < 3; ++request) {
        ASSERT_EQ(planner.set("EV"), 1);
        ASSERT_EQ(host.result(), 1);
        ASSERT_EQ(host.set("EV"), 1);
        host.beginWait("EV");
        ASSERT_EQ(planner.wait("EV"), 1);
    }
    ASSERT_EQ(planner.set("EV"), 1);
    ASSERT_EQ(planner.remove("EV"), 1);
    EXPECT_EQ(host.result(), 1);
    EXPECT_EQ(eventFiles(), 0);
}

} // namespace
} // namespace planner::ipctest
