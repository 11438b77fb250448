// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"
#include "ipc_fixture.h"
#include "shared_counter.h"

#include <csignal>
#include <cstdlib>
#include <string>
#include <sys/resource.h>
#include <sys/time.h>
#include <thread>

namespace planner::ipctest {
namespace {

class LoadTest : public IpcTest {};

TEST_F(LoadTest, TenThousandRoundsStayInStep) {
    constexpr int ROUNDS = 10000;
    SharedCounter counter;
    Child host([&counter] {
        for (int i = 0; i < ROUNDS; ++i) {
            if (TvIpcWaitEvento("EV") != 1 || counter.add() != 2 * i + 1 || TvIpcSetEvento("EV") != 1) {
                return 1;
            }
        }
        return 0;
    });
    Child planner([&counter] {
        TvIpcCreazioneEvento("EV");
        for (int i = 0; i < ROUNDS; ++i) {
            if (counter.add() != 2 * i || TvIpcSetEvento("EV") != 1 || TvIpcWaitEvento("EV") != 1) {
                return 1;
            }
        }
        return TvIpcRimozioneEvento("EV") == 1 ? 0 : 1;
    });
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_EQ(host.exitCode(), 0);
    EXPECT_EQ(counter.value(), 2 * ROUNDS);
    EXPECT_EQ(eventFiles(), 0);
}

// A planner that comes and goes, and comes again before the host has done with the one before.
int comeAndGo(SharedCounter& last) {
    constexpr int TIMES = 10;
    for (int i = 1; i <= TIMES; ++i) {
        last.set(i == TIMES ? 1 : 0);
        if (TvIpcCreazioneEvento("EV") != 1 || TvIpcSetEvento("EV") != 1 || TvIpcRimozioneEvento("EV") != 1) {
            return 1;
        }
    }
    return 0;
}

TEST_F(LoadTest, LastSignalOfPlannersInQuickSuccessionReachesTheHost) {
    SharedCounter last;
    for (int round = 0; round < 200; ++round) {
        last.set(0);
        Child host([&last] {
            while (TvIpcWaitEvento("EV") == 1 && last.value() == 0) {
            }
            return last.value() == 1 ? 0 : 1;
        });
        Child planner([&last] { return comeAndGo(last); });
        ASSERT_EQ(planner.exitCode(), 0) << "round " << round;
        ASSERT_EQ(host.exitCode(), 0) << "round " << round;
    }
}

double processorSeconds(const rusage& usage) {
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// 0 when the wait is released having slept once or twice and used next to no processor time.
int waitAndAccount(const char* name) {
    rusage before{};
    rusage after{};
    getrusage(RUSAGE_SELF, &before);
    const bool released = TvIpcWaitEvento(name) == 1;
    getrusage(RUSAGE_SELF, &after);
    const bool slept = after.ru_nvcsw - before.ru_nvcsw <= 8;
    return released && slept && processorSeconds(after) - processorSeconds(before) < 0.02 ? 0 : 1;
}

TEST_F(LoadTest, WaitingUsesNoProcessorTime) {
    constexpr std::chrono::milliseconds LONG_ENOUGH{400};
    Actor planner;
    ASSERT_EQ(planner.create("CREATED"), 1);
    Child host([] { return waitAndAccount("CREATED"); });
    Child early([] { return waitAndAccount("LATER"); });
    Child creator([] {
        TvIpcCreazioneEvento("ASKED");
        return waitAndAccount("ASKED");
    });
    std::this_thread::sleep_for(LONG_ENOUGH);
    Actor other;
    ASSERT_EQ(planner.create("LATER"), 1);
    ASSERT_EQ(planner.set("LATER"), 1);
    ASSERT_EQ(planner.set("CREATED"), 1);
    ASSERT_EQ(other.set("ASKED"), 1);
    EXPECT_EQ(host.exitCode(), 0);
    EXPECT_EQ(early.exitCode(), 0);
    EXPECT_EQ(creator.exitCode(), 0);
}

// Makes a timer interrupt whatever the process does, every 100 microseconds.
void interruptAllTheTime(SharedCounter& counter) {
    static SharedCounter* counted = nullptr;
    counted = &counter;
    struct sigaction action {};
    action.sa_handler = [](int) { counted->add(); };
    sigaction(SIGALRM, &action, nullptr);
    const itimerval interval{{0, 100}, {0, 100}};
    setitimer(ITIMER_REAL, &interval, nullptr);
}

void stopInterrupting() {
    const itimerval none{};
    setitimer(ITIMER_REAL, &none, nullptr);
}

TEST_F(LoadTest, InterruptionsDoNotEndAWait) {
    SharedCounter interrupts;
    Child host([&interrupts] {
        interruptAllTheTime(interrupts);
        const int result = TvIpcWaitEvento("EV");
        stopInterrupting();
        return result == 1 ? 0 : 1;
    });
    ASSERT_TRUE(comesTrue([&] { return interrupts.value() > 300; }));
    Actor planner;
    ASSERT_EQ(planner.create("EV"), 1);
    const int seen = interrupts.value();
    ASSERT_TRUE(comesTrue([&] { return interrupts.value() > seen + 300; }));
    ASSERT_EQ(planner.set("EV"), 1);
    EXPECT_EQ(host.exitCode(), 0);
    EXPECT_EQ(planner.remove("EV"), 1);
}

TEST_F(LoadTest, InterruptionsDoNotDisturbADialogue) {
    SharedCounter interrupts;
    Child planner([&interrupts] {
        interruptAllTheTime(interrupts);
        TvIpcCreazioneEvento("EV");
        bool done = true;
        while (done && interrupts.value() < 500) {
            done = TvIpcSetEvento("EV") == 1 && TvIpcWaitEvento("EV") == 1;
        }
        stopInterrupting();
        return done ? 0 : 1;
    });
    Child host([] {
        while (TvIpcWaitEvento("EV") == 1 && TvIpcSetEvento("EV") == 1) {
        }
        return 0;
    });
    EXPECT_EQ(planner.exitCode(), 0);
}

// Plays one whole event between the two actors, from the wait before it to its last signal.
void playOnce(Actor& planner, Actor& host, const std::string& name) {
    ASSERT_EQ(planner.create(name), 1);
    ASSERT_EQ(planner.set(name), 1);
    ASSERT_EQ(host.wait(name), 1);
    ASSERT_EQ(host.set(name), 1);
    ASSERT_EQ(planner.wait(name), 1);
    ASSERT_EQ(planner.remove(name), 1);
}

TEST_F(LoadTest, DescriptorsDoNotLeakWithOneName) {
    Actor planner;
    Actor host;
    const int plannerBefore = planner.descriptors();
    const int hostBefore = host.descriptors();
    for (int i = 0; i < 1000; ++i) {
        ASSERT_NO_FATAL_FAILURE(playOnce(planner, host, "EV"));
    }
    EXPECT_EQ(planner.descriptors(), plannerBefore);
    EXPECT_LE(host.descriptors(), hostBefore + 1);
    EXPECT_EQ(eventFiles(), 0);
}

TEST_F(LoadTest, DescriptorsDoNotLeakWithManyNames) {
    Actor planner;
    Actor host;
    const int plannerBefore = planner.descriptors();
    const int hostBefore = host.descriptors();
    for (int i = 0; i < 1000; ++i) {
        ASSERT_NO_FATAL_FAILURE(playOnce(planner, host, "EV" + std::to_string(i)));
    }
    EXPECT_EQ(planner.descriptors(), plannerBefore);
    EXPECT_LE(host.descriptors(), hostBefore + 1);
    EXPECT_EQ(eventFiles(), 0);
}

TEST_F(LoadTest, DescriptorsDoNotLeakWithLastSignals) {
    Actor planner;
    Actor host;
    const int plannerBefore = planner.descriptors();
    const int hostBefore = host.descriptors();
    for (int i = 0; i < 1000; ++i) {
        const std::string name = "EV" + std::to_string(i);
        ASSERT_EQ(planner.create(name), 1);
        ASSERT_EQ(planner.set(name), 1);
        ASSERT_EQ(planner.remove(name), 1);
        ASSERT_EQ(host.wait(name), 1);
    }
    EXPECT_EQ(planner.descriptors(), plannerBefore);
    EXPECT_EQ(host.descriptors(), hostBefore);
    EXPECT_EQ(eventFiles(), 0);
}

} // namespace
} // namespace planner::ipctest
