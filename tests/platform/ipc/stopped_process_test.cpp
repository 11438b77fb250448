// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ipc_fixture.h"
#include "platform/event/event_steps.h"

namespace planner::ipctest {
namespace {

class StoppedProcessTest : public IpcTest {
protected:
    Actor planner;
    Actor next;
    Actor host;
};

TEST_F(StoppedProcessTest, EventWhoseDeathHasBeenToldIsLetGo) {
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    planner.kill();
    expectDeathTold(host);
    const int before = host.descriptors();
    ASSERT_EQ(next.create("A"), 1);
    ASSERT_EQ(host.set("A"), 1);
    EXPECT_EQ(host.descriptors(), before);
}

// Stopped, the host cannot look: when it goes on, another planner has taken the name over.
TEST_F(StoppedProcessTest, WaitGoesOnWithACreatorThatTookTheNameOverMeanwhile) {
    ASSERT_EQ(planner.create("EV"), 1);
    host.beginWait("EV");
    ASSERT_TRUE(host.isWaiting());
    host.stop();
    planner.kill();
    ASSERT_EQ(next.create("EV"), 1);
    host.goOn();
    EXPECT_TRUE(host.staysWaiting());
    ASSERT_EQ(next.set("EV"), 1);
    EXPECT_EQ(host.result(), 1);
    next.kill();
    expectDeathTold(host);
}

TEST_F(StoppedProcessTest, HostThatIsStoppedAndKilledDoesNotKeepTheSignal) {
    ASSERT_EQ(planner.create("EV"), 1);
    host.beginWait("EV");
    ASSERT_TRUE(host.sleeps());
    next.beginWait("EV");
    ASSERT_TRUE(next.sleeps());
    host.stop();
    ASSERT_EQ(planner.set("EV"), 1);
    host.kill();
    EXPECT_EQ(next.result(), 1);
}

} // namespace
} // namespace planner::ipctest
