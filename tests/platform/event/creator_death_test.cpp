// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_steps.h"
#include "ipc_fixture.h"

#include <cerrno>

namespace planner::ipctest {
namespace {

class CreatorDeathTest : public IpcTest {
protected:
    Actor planner;
    Actor next;
    Actor host;
};

TEST_F(CreatorDeathTest, NewCreationSeesNoSignalOfEitherSide) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    planner.kill();
    ASSERT_EQ(next.create("EV"), 1);
    next.beginWait("EV");
    host.beginWait("EV");
    EXPECT_TRUE(next.isWaiting());
    EXPECT_TRUE(host.isWaiting());
}

TEST_F(CreatorDeathTest, NewCreationWorksAsTheFirst) {
    ASSERT_EQ(planner.create("EV"), 1);
    planner.kill();
    ASSERT_EQ(next.create("EV"), 1);
    ASSERT_EQ(next.set("EV"), 1);
    EXPECT_EQ(host.wait("EV"), 1);
    EXPECT_EQ(host.set("EV"), 1);
    EXPECT_EQ(next.wait("EV"), 1);
    EXPECT_EQ(next.remove("EV"), 1);
    EXPECT_EQ(eventFiles(), 0);
}

TEST_F(CreatorDeathTest, EndWithoutRemovalIsLikeDeath) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    planner.end();
    EXPECT_EQ(host.set("EV"), 0);
    ASSERT_EQ(next.create("EV"), 1);
    host.beginWait("EV");
    EXPECT_TRUE(host.isWaiting());
}

TEST_F(CreatorDeathTest, HostThatComesAfterwardsDoesNotTakeTheDeadSignal) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    planner.kill();
    host.beginWait("EV");
    ASSERT_TRUE(host.isWaiting());
    ASSERT_EQ(next.create("EV"), 1);
    EXPECT_TRUE(host.isWaiting());
    ASSERT_EQ(next.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
}

TEST_F(CreatorDeathTest, HostThatWasInTheDialogueStillTakesItsSignal) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    planner.kill();
    EXPECT_EQ(host.wait("EV"), 1);
    expectDeathTold(host);
}

TEST_F(CreatorDeathTest, WaitIsToldOfADeath) {
    ASSERT_EQ(planner.create("EV"), 1);
    host.beginWait("EV");
    ASSERT_TRUE(host.isWaiting());
    planner.kill();
    EXPECT_EQ(host.result(), 0);
    EXPECT_EQ(host.error(), EOWNERDEAD);
}

TEST_F(CreatorDeathTest, WaitIsToldOfAnEndWithoutRemoval) {
    ASSERT_EQ(planner.create("EV"), 1);
    host.beginWait("EV");
    ASSERT_TRUE(host.isWaiting());
    planner.end();
    EXPECT_EQ(host.result(), 0);
    EXPECT_EQ(host.error(), EOWNERDEAD);
}

TEST_F(CreatorDeathTest, WaitBegunBeforeTheCreationIsToldOfTheCreatorsDeath) {
    host.beginWait("EV");
    ASSERT_TRUE(host.isWaiting());
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_TRUE(host.isWaiting());
    planner.kill();
    EXPECT_EQ(host.result(), 0);
    EXPECT_EQ(host.error(), EOWNERDEAD);
}

TEST_F(CreatorDeathTest, DeathIsToldOnceAndTheNextWaitIsForTheNextCreator) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    planner.kill();
    expectDeathTold(host);
    host.beginWait("EV");
    EXPECT_TRUE(host.staysWaiting());
    ASSERT_EQ(next.create("EV"), 1);
    ASSERT_EQ(next.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
    next.kill();
    expectDeathTold(host);
}

TEST_F(CreatorDeathTest, EveryHostIsTold) {
    Actor another;
    ASSERT_EQ(planner.create("EV"), 1);
    host.beginWait("EV");
    another.beginWait("EV");
    ASSERT_TRUE(host.isWaiting());
    ASSERT_TRUE(another.isWaiting());
    planner.kill();
    EXPECT_EQ(host.result(), 0);
    EXPECT_EQ(another.result(), 0);
    EXPECT_EQ(another.error(), EOWNERDEAD);
}

TEST_F(CreatorDeathTest, CreatorThatTheHostNeverMetHasNotDied) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    planner.kill();
    host.beginWait("EV");
    EXPECT_TRUE(host.staysWaiting());
    EXPECT_EQ(next.set("EV"), 0);
    ASSERT_EQ(next.create("EV"), 1);
    ASSERT_EQ(next.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
}

TEST_F(CreatorDeathTest, RemovalIsNoDeath) {
    ASSERT_EQ(planner.create("EV"), 1);
    host.beginWait("EV");
    ASSERT_TRUE(host.isWaiting());
    ASSERT_EQ(planner.remove("EV"), 1);
    planner.end();
    EXPECT_TRUE(host.staysWaiting());
    ASSERT_EQ(next.create("EV"), 1);
    ASSERT_EQ(next.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
}

TEST_F(CreatorDeathTest, DeathIsToldThoughOtherEventsWereUsedMeanwhile) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    planner.kill();
    for (const char* name : {"A", "B", "C"}) {
        ASSERT_EQ(next.create(name), 1);
        ASSERT_EQ(host.set(name), 1);
    }
    expectDeathTold(host);
}

TEST_F(CreatorDeathTest, WaitBegunBeforeTheCreationIsReleasedByACreatorThatDiesAtOnce) {
    for (int round = 0; round < 50; ++round) {
        Actor early;
        early.beginWait("EV");
        ASSERT_TRUE(early.sleeps());
        Actor shortLived;
        ASSERT_EQ(shortLived.create("EV"), 1);
        ASSERT_EQ(shortLived.set("EV"), 1);
        shortLived.kill();
        ASSERT_EQ(early.result(), 1) << "round " << round;
    }
}

TEST_F(CreatorDeathTest, NobodyCanSignalADeadCreator) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    planner.kill();
    EXPECT_EQ(host.set("EV"), 0);
    Actor other;
    EXPECT_EQ(other.set("EV"), 0);
    EXPECT_EQ(other.remove("EV"), 0);
}

TEST_F(CreatorDeathTest, KilledHostLeavesTheSignalToTheNextHost) {
    ASSERT_EQ(planner.create("EV"), 1);
    host.beginWait("EV");
    ASSERT_TRUE(host.sleeps());
    host.kill();
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(next.wait("EV"), 1);
}

TEST_F(CreatorDeathTest, HostThatWaitsBesideAKilledOneIsReleased) {
    ASSERT_EQ(planner.create("EV"), 1);
    host.beginWait("EV");
    next.beginWait("EV");
    ASSERT_TRUE(host.sleeps());
    ASSERT_TRUE(next.sleeps());
    host.kill();
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(next.result(), 1);
}

TEST_F(CreatorDeathTest, HostKilledBeforeTheCreationDoesNotHinderIt) {
    host.beginWait("EV");
    ASSERT_TRUE(host.sleeps());
    host.kill();
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(next.wait("EV"), 1);
    EXPECT_EQ(planner.remove("EV"), 1);
    EXPECT_EQ(eventFiles(), 0);
}

} // namespace
} // namespace planner::ipctest
