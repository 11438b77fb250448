// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ipc_fixture.h"

#include <unistd.h>

namespace planner::ipctest {
namespace {

class EventWatchTest : public IpcTest {
protected:
    void createAndWatch() {
        ASSERT_EQ(planner.create("EV"), 1);
        ASSERT_EQ(planner.beginWatch("EV"), 1);
    }

    Actor planner;
    Actor host;
};

TEST_F(EventWatchTest, TellsWhenTheSignalHasBeenTaken) {
    createAndWatch();
    EXPECT_EQ(planner.lastSignalTaken(), 1);
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(planner.lastSignalTaken(), 0);
    ASSERT_EQ(host.wait("EV"), 1);
    EXPECT_EQ(planner.lastSignalTaken(), 1);
}

TEST_F(EventWatchTest, SignalOfTheHostIsNotTheOwn) {
    createAndWatch();
    ASSERT_EQ(host.set("EV"), 1);
    EXPECT_EQ(planner.lastSignalTaken(), 1);
}

TEST_F(EventWatchTest, TellsOfTheLastSignalAfterTheRemovalToo) {
    createAndWatch();
    ASSERT_EQ(planner.set("EV"), 1);
    ASSERT_EQ(planner.remove("EV"), 1);
    EXPECT_EQ(planner.lastSignalTaken(), 0);
    ASSERT_EQ(host.wait("EV"), 1);
    EXPECT_EQ(planner.lastSignalTaken(), 1);
}

TEST_F(EventWatchTest, HostLivesFromItsFirstUseToItsEnd) {
    createAndWatch();
    EXPECT_EQ(planner.otherSideAlive(), 0);
    ASSERT_EQ(host.set("EV"), 1);
    EXPECT_EQ(planner.otherSideAlive(), 1);
    host.end();
    EXPECT_EQ(planner.otherSideAlive(), 0);
}

TEST_F(EventWatchTest, EveryHostCounts) {
    Actor another;
    createAndWatch();
    ASSERT_EQ(host.set("EV"), 1);
    another.beginWait("EV");
    ASSERT_TRUE(another.sleeps());
    host.kill();
    EXPECT_EQ(planner.otherSideAlive(), 1);
    another.kill();
    EXPECT_EQ(planner.otherSideAlive(), 0);
}

TEST_F(EventWatchTest, HostThatWaitedBeforeTheCreationCounts) {
    host.beginWait("EV");
    ASSERT_TRUE(host.sleeps());
    createAndWatch();
    EXPECT_EQ(planner.otherSideAlive(), 1);
    host.kill();
    EXPECT_EQ(planner.otherSideAlive(), 0);
}

TEST_F(EventWatchTest, HostOfManyEventsCountsForEachThatLives) {
    Actor other;
    createAndWatch();
    ASSERT_EQ(host.set("EV"), 1);
    for (const char* name : {"A", "B", "C"}) {
        ASSERT_EQ(other.create(name), 1);
        ASSERT_EQ(host.set(name), 1);
        ASSERT_EQ(other.remove(name), 1);
    }
    EXPECT_EQ(planner.otherSideAlive(), 1);
}

TEST_F(EventWatchTest, HostWhoseCreationIsRefusedStaysAlive) {
    createAndWatch();
    ASSERT_EQ(host.set("EV"), 1);
    ASSERT_EQ(host.create("EV"), 0);
    EXPECT_EQ(planner.otherSideAlive(), 1);
}

TEST_F(EventWatchTest, LeavesTheEventToItsCreator) {
    createAndWatch();
    Actor second;
    EXPECT_EQ(second.create("EV"), 0);
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.wait("EV"), 1);
    EXPECT_EQ(host.set("EV"), 1);
    EXPECT_EQ(planner.wait("EV"), 1);
}

TEST_F(EventWatchTest, SaysYesWhenItCannotTell) {
    ASSERT_EQ(planner.beginWatch("NONE"), 1);
    EXPECT_EQ(planner.lastSignalTaken(), 1);
    EXPECT_EQ(planner.otherSideAlive(), 1);
    ASSERT_EQ(planner.beginWatch(std::string(300, 'n')), 1);
    EXPECT_EQ(planner.lastSignalTaken(), 1);
    EXPECT_EQ(planner.otherSideAlive(), 1);
}

TEST_F(EventWatchTest, SaysThatTheSignalIsTakenWhenTheFileIsCut) {
    createAndWatch();
    ASSERT_EQ(planner.set("EV"), 1);
    ASSERT_EQ(truncate(eventFile("EV").c_str(), 0), 0);
    EXPECT_EQ(planner.lastSignalTaken(), 1);
}

} // namespace
} // namespace planner::ipctest
