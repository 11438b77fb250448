// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ipc_fixture.h"

#include <cerrno>

namespace planner::ipctest {
namespace {

// A process whose creation was refused has no part in the event.
class RefusalTest : public IpcTest {
protected:
    void expectLeftOut(Actor& actor, const std::string& name) {
        EXPECT_EQ(actor.set(name), 0);
        EXPECT_EQ(actor.error(), EADDRINUSE);
        EXPECT_EQ(actor.wait(name), 0);
        EXPECT_EQ(actor.error(), EADDRINUSE);
    }

    Actor owner;
    Actor second;
};

TEST_F(RefusalTest, RefusedProcessNeitherSignalsNorWaits) {
    ASSERT_EQ(owner.create("EV"), 1);
    ASSERT_EQ(owner.set("EV"), 1);
    ASSERT_EQ(second.create("EV"), 0);
    expectLeftOut(second, "EV");
    owner.beginWait("EV");
    EXPECT_TRUE(owner.isWaiting());
    Actor host;
    EXPECT_EQ(host.wait("EV"), 1);
    EXPECT_EQ(host.set("EV"), 1);
    EXPECT_EQ(owner.result(), 1);
}

TEST_F(RefusalTest, HostThatWantsToCreateIsLeftOutToo) {
    ASSERT_EQ(owner.create("EV"), 1);
    ASSERT_EQ(second.set("EV"), 1);
    ASSERT_EQ(second.create("EV"), 0);
    EXPECT_EQ(second.error(), EADDRINUSE);
    expectLeftOut(second, "EV");
}

TEST_F(RefusalTest, LastsBeyondTheOwnersDeathUntilTheCreationSucceeds) {
    ASSERT_EQ(owner.create("EV"), 1);
    ASSERT_EQ(second.create("EV"), 0);
    owner.kill();
    expectLeftOut(second, "EV");
    ASSERT_EQ(second.create("EV"), 1);
    EXPECT_EQ(second.set("EV"), 1);
    Actor host;
    EXPECT_EQ(host.wait("EV"), 1);
    EXPECT_EQ(host.set("EV"), 1);
    EXPECT_EQ(second.wait("EV"), 1);
}

TEST_F(RefusalTest, RemovalForgetsItAndFailsAsBefore) {
    ASSERT_EQ(owner.create("EV"), 1);
    ASSERT_EQ(second.create("EV"), 0);
    EXPECT_EQ(second.remove("EV"), 0);
    EXPECT_EQ(second.error(), EPERM);
    ASSERT_EQ(owner.set("EV"), 1);
    EXPECT_EQ(second.wait("EV"), 1);
    EXPECT_EQ(second.set("EV"), 1);
    EXPECT_EQ(owner.wait("EV"), 1);
}

TEST_F(RefusalTest, OtherNamesAreNotConcerned) {
    ASSERT_EQ(owner.create("A"), 1);
    ASSERT_EQ(owner.create("B"), 1);
    ASSERT_EQ(owner.create("C"), 1);
    ASSERT_EQ(second.create("A"), 0);
    ASSERT_EQ(second.create("B"), 0);
    EXPECT_EQ(second.set("C"), 1);
    EXPECT_EQ(second.remove("A"), 0);
    EXPECT_EQ(second.set("A"), 1);
    expectLeftOut(second, "B");
}

} // namespace
} // namespace planner::ipctest
