// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ipc_fixture.h"
#include "platform/ipc/tavterm_host_ipc.h"

namespace planner::ipctest {
namespace {

class AdapterTest : public IpcTest {};

TEST_F(AdapterTest, PlannerTalksThroughThePort) {
    Child planner([] {
        TavTermHostIpc ipc;
        ipc.TvIpcCreazioneEvento("EV");
        ipc.TvIpcSetEvento("EV");
        ipc.TvIpcWaitEvento("EV");
        ipc.TvIpcSetEvento("EV");
        ipc.TvIpcRimozioneEvento("EV");
        return 0;
    });
    Actor host;
    EXPECT_EQ(host.wait("EV"), 1);
    EXPECT_EQ(host.set("EV"), 1);
    EXPECT_EQ(host.wait("EV"), 1);
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_EQ(eventFiles(), 0);
}

} // namespace
} // namespace planner::ipctest
