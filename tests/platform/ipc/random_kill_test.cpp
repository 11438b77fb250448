// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"
#include "ipc_fixture.h"
#include "shared_counter.h"

#include <random>
#include <thread>

namespace planner::ipctest {
namespace {

int playPlannerForEver() {
    for (;;) {
        TvIpcCreazioneEvento("EV");
        for (int i = 0; i < 3; ++i) {
            TvIpcSetEvento("EV");
            TvIpcWaitEvento("EV");
        }
        TvIpcSetEvento("EV");
        TvIpcRimozioneEvento("EV");
    }
}

// Creates and removes as often as it can, so that a kill is likely to fall into either.
int comeAndGoForEver() {
    for (;;) {
        TvIpcCreazioneEvento("EV");
        TvIpcSetEvento("EV");
        TvIpcRimozioneEvento("EV");
    }
}

int playHostForEver() {
    for (;;) {
        TvIpcWaitEvento("EV");
        TvIpcSetEvento("EV");
    }
}

class RandomKillTest : public IpcTest {
protected:
    // Lets the two run for a random moment and kills them, in a random order.
    void runAndKill(int (*plannerBody)()) {
        Child planner(plannerBody);
        Child host(playHostForEver);
        std::this_thread::sleep_for(std::chrono::microseconds(m_moment(m_random)));
        Child& first = m_coin(m_random) == 0 ? planner : host;
        first.kill();
    }

    // A fresh pair works: each of the two is released by the other one's signal and by nothing older.
    void expectFreshPairWorks(int round) {
        SharedCounter steps;
        Actor planner;
        ASSERT_EQ(planner.create("EV"), 1) << "round " << round;
        Child host([&steps] {
            const bool released = TvIpcWaitEvento("EV") == 1 && steps.add() == 1;
            return released && TvIpcSetEvento("EV") == 1 ? 0 : 1;
        });
        ASSERT_TRUE(host.fallsAsleep());
        ASSERT_EQ(steps.add(), 0) << "round " << round;
        ASSERT_EQ(planner.set("EV"), 1) << "round " << round;
        ASSERT_EQ(planner.wait("EV"), 1) << "round " << round;
        ASSERT_EQ(steps.value(), 2) << "round " << round;
        ASSERT_EQ(host.exitCode(), 0) << "round " << round;
        ASSERT_EQ(planner.remove("EV"), 1) << "round " << round;
        ASSERT_EQ(eventFiles(), 0) << "round " << round;
    }

    std::mt19937 m_random{20060315};
    std::uniform_int_distribution<int> m_moment{0, 3000};
    std::uniform_int_distribution<int> m_coin{0, 1};
};

TEST_F(RandomKillTest, DialogueKilledAtAnyMomentLeavesNothingStale) {
    for (int round = 0; round < 100; ++round) {
        runAndKill(playPlannerForEver);
        ASSERT_NO_FATAL_FAILURE(expectFreshPairWorks(round));
    }
}

TEST_F(RandomKillTest, CreationAndRemovalKilledAtAnyMomentLeaveNothingStale) {
    for (int round = 0; round < 100; ++round) {
        runAndKill(comeAndGoForEver);
        ASSERT_NO_FATAL_FAILURE(expectFreshPairWorks(round));
    }
}

TEST_F(RandomKillTest, HostGoesOnWithOnePlannerAfterTheOther) {
    Child host(playHostForEver);
    for (int round = 0; round < 100; ++round) {
        {
            Child killed(playPlannerForEver);
            std::this_thread::sleep_for(std::chrono::microseconds(m_moment(m_random)));
        }
        Child planner([] {
            bool done = TvIpcCreazioneEvento("EV") == 1;
            for (int i = 0; done && i < 3; ++i) {
                done = TvIpcSetEvento("EV") == 1 && TvIpcWaitEvento("EV") == 1;
            }
            return done && TvIpcRimozioneEvento("EV") == 1 ? 0 : 1;
        });
        ASSERT_EQ(planner.exitCode(), 0) << "round " << round;
    }
}

} // namespace
} // namespace planner::ipctest
