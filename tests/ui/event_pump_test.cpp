// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/ports/qt_event_pump.h"

#include <QTimer>

#include <gtest/gtest.h>
#include <thread>

namespace planner {

namespace {

/// A thread wakes the pump after it has set `woken`.
class EventPumpTest : public testing::Test {
protected:
    void waitUntilWoken() {
        while (!woken) {
            pump.waitAndProcess();
        }
    }

    QtEventPump pump;
    QObject pumped;
    std::atomic<bool> woken = false;
};

TEST_F(EventPumpTest, AnotherThreadEndsTheWait) {
    std::thread other([this] {
        woken = true;
        pump.wakeUp();
    });
    waitUntilWoken();
    other.join();
    EXPECT_TRUE(woken);
}

TEST_F(EventPumpTest, AWakeUpBeforeTheWaitEndsItToo) {
    std::thread([this] { pump.wakeUp(); }).join();
    bool returned = false;
    QTimer::singleShot(0, &pumped, [&] { returned = true; });
    pump.waitAndProcess();
    EXPECT_TRUE(returned) << "what was pending is processed too";
}

TEST_F(EventPumpTest, EventsAreProcessedWhileTheWaitGoesOn) {
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (++ticks == 3) {
            woken = true;
            pump.wakeUp();
        }
    });
    timer.start(0);
    waitUntilWoken();
    EXPECT_EQ(ticks, 3);
}

TEST_F(EventPumpTest, EventsAreProcessedForATime) {
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] { ++ticks; });
    timer.start(0);
    pump.processFor(std::chrono::milliseconds{20});
    EXPECT_GT(ticks, 0);
}

} // namespace

} // namespace planner
