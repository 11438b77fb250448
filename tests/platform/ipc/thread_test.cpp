// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "TavTermIPC.h"
#include "ipc_fixture.h"

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace planner::ipctest {
namespace {

class ThreadTest : public IpcTest {
protected:
    Actor host;
};

TEST_F(ThreadTest, WaitOfOneThreadDoesNotHinderAnother) {
    Child process([] {
        std::thread([] { TvIpcWaitEvento("A"); }).detach();
        const bool done = TvIpcCreazioneEvento("B") == 1 && TvIpcSetEvento("B") == 1 &&
                          TvIpcWaitEvento("B") == 1 && TvIpcRimozioneEvento("B") == 1;
        return done ? 0 : 1; // the other thread still waits
    });
    EXPECT_EQ(host.wait("B"), 1);
    EXPECT_EQ(host.set("B"), 1);
    EXPECT_EQ(process.exitCode(), 0);
}

// Removes the event, with a signal to the host pending or not, while a thread waits.
int removeBesideAWait(bool pending) {
    TvIpcCreazioneEvento("EV");
    if (pending) {
        TvIpcSetEvento("EV");
    }
    std::atomic<int> result{-1};
    std::thread waiting([&result] { result = TvIpcWaitEvento("EV"); });
    TvIpcWaitEvento("NOW");
    const int removed = TvIpcRimozioneEvento("EV");
    waiting.join();
    return removed == 1 && result == 0 ? 0 : 1;
}

TEST_F(ThreadTest, RemovalEndsTheWaitOfTheSameProcess) {
    for (const bool pending : {false, true}) {
        Child process([pending] { return removeBesideAWait(pending); });
        ASSERT_TRUE(process.fallsAsleep(2));
        ASSERT_EQ(host.create("NOW"), 1);
        ASSERT_EQ(host.set("NOW"), 1);
        EXPECT_EQ(process.exitCode(), 0);
        ASSERT_EQ(host.remove("NOW"), 1);
    }
}

// The thread that still lets go of the old event must not take the new one from the process.
TEST_F(ThreadTest, CreationRightAfterARemovalStays) {
    Child process([] {
        int failures = 0;
        for (int i = 0; i < 100; ++i) {
            TvIpcCreazioneEvento("EV");
            std::thread waiting([] { TvIpcWaitEvento("EV"); });
            // Now before the thread waits, now after.
            std::this_thread::sleep_for(std::chrono::microseconds(3 * i));
            TvIpcSetEvento("EV");
            TvIpcRimozioneEvento("EV");
            TvIpcCreazioneEvento("EV");
            failures += Child([] { return TvIpcSetEvento("EV"); }).exitCode() == 1 ? 0 : 1;
            TvIpcRimozioneEvento("EV");
            // For a thread so late that it waits for another creation.
            Child rescuer([] {
                TvIpcCreazioneEvento("EV");
                TvIpcSetEvento("EV");
                return TvIpcRimozioneEvento("EV");
            });
            waiting.join();
        }
        return failures;
    });
    EXPECT_EQ(process.exitCode(), 0);
}

// A thread that began to wait before its own process created the event belongs to the creator.
TEST_F(ThreadTest, ThreadsOfTheCreatorAreOneSide) {
    Child process([] {
        std::atomic<int> result{-1};
        std::thread waiting([&result] { result = TvIpcWaitEvento("EV"); });
        TvIpcWaitEvento("NOW");
        const bool set = TvIpcCreazioneEvento("EV") == 1 && TvIpcSetEvento("EV") == 1;
        TvIpcWaitEvento("THEN");
        const bool free = result != -1;
        TvIpcSetEvento("THEN");
        waiting.join();
        return set && !free && result == 1 ? 0 : 1;
    });
    ASSERT_TRUE(process.fallsAsleep(2));
    ASSERT_EQ(host.create("THEN"), 1);
    ASSERT_EQ(host.create("NOW"), 1);
    ASSERT_EQ(host.set("NOW"), 1);
    EXPECT_EQ(host.wait("EV"), 1);
    ASSERT_EQ(host.set("THEN"), 1);
    ASSERT_EQ(host.wait("THEN"), 1);
    EXPECT_EQ(host.set("EV"), 1);
    EXPECT_EQ(process.exitCode(), 0);
}

// Plays the planner of one event from its creation to its removal.
bool playPlanner(const std::string& name, int rounds) {
    bool done = TvIpcCreazioneEvento(name.c_str()) == 1;
    for (int i = 0; done && i < rounds; ++i) {
        done = TvIpcSetEvento(name.c_str()) == 1 && TvIpcWaitEvento(name.c_str()) == 1;
    }
    return TvIpcRimozioneEvento(name.c_str()) == 1 && done;
}

bool playHost(const std::string& name, int rounds) {
    bool done = true;
    for (int i = 0; done && i < rounds; ++i) {
        done = TvIpcWaitEvento(name.c_str()) == 1 && TvIpcSetEvento(name.c_str()) == 1;
    }
    return done;
}

int inThreads(int count, const std::function<bool(const std::string&)>& play) {
    std::atomic<int> failures{0};
    std::vector<std::thread> threads;
    threads.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        threads.emplace_back([&failures, &play, i] { failures += play("EV" + std::to_string(i)) ? 0 : 1; });
    }
    for (std::thread& each : threads) {
        each.join();
    }
    return failures;
}

TEST_F(ThreadTest, ManyThreadsHoldDialoguesAtOnce) {
    constexpr int THREADS = 8;
    constexpr int ROUNDS = 200;
    Child hosts(
        [] { return inThreads(THREADS, [](const std::string& name) { return playHost(name, ROUNDS); }); });
    Child planners(
        [] { return inThreads(THREADS, [](const std::string& name) { return playPlanner(name, ROUNDS); }); });
    EXPECT_EQ(hosts.exitCode(), 0);
    EXPECT_EQ(planners.exitCode(), 0);
}

TEST_F(ThreadTest, ForkBesideBusyThreadsGivesAChildThatWorks) {
    Child process([] {
        std::atomic<bool> stop{false};
        TvIpcCreazioneEvento("BUSY");
        std::thread busy([&stop] {
            while (!stop) {
                TvIpcSetEvento("BUSY");
            }
        });
        int failures = 0;
        for (int i = 0; i < 50; ++i) {
            Child child(
                [] { return TvIpcCreazioneEvento("EV") == 1 && TvIpcRimozioneEvento("EV") == 1 ? 0 : 1; });
            failures += child.exitCode() == 0 ? 0 : 1;
        }
        stop = true;
        busy.join();
        return failures;
    });
    EXPECT_EQ(process.exitCode(), 0);
}

} // namespace
} // namespace planner::ipctest
