// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"
#include "ipc_fixture.h"

#include <cerrno>
#include <sys/resource.h>

namespace planner::ipctest {
namespace {

class RefusedChildTest : public IpcTest {
protected:
    Actor owner;
};

TEST_F(RefusedChildTest, ForkedChildStartsAnew) {
    ASSERT_EQ(owner.create("EV"), 1);
    Child process([] {
        if (TvIpcCreazioneEvento("EV") != 0 || TvIpcCreazioneEvento("EV") != 0 || TvIpcSetEvento("EV") != 0) {
            return 1;
        }
        return Child([] { return TvIpcSetEvento("EV") == 1 ? 0 : 2; }).exitCode().value_or(3);
    });
    EXPECT_EQ(process.exitCode(), 0);
}

// Any failure of a creation leaves its process out: it did not become the planner.
TEST_F(RefusedChildTest, FailureOfTheSystemIsARefusalWithItsOwnError) {
    Child process([] {
        rlimit before{};
        getrlimit(RLIMIT_NOFILE, &before);
        const rlimit none{0, before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
        const bool created = TvIpcCreazioneEvento("EV") != 0;
        setrlimit(RLIMIT_NOFILE, &before);
        const bool signalled = TvIpcSetEvento("EV") != 0;
        const int error = errno;
        return !created && !signalled && error == EMFILE && TvIpcCreazioneEvento("EV") == 1 &&
                       TvIpcSetEvento("EV") == 1
                   ? 0
                   : 1;
    });
    EXPECT_EQ(process.exitCode(), 0);
}

} // namespace
} // namespace planner::ipctest
