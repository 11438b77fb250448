// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

namespace planner {

namespace {

struct KeyCounter : QWidget {
    int presses = 0;

    KeyCounter() { show(); }
    void keyPressEvent(QKeyEvent* event) override {
        ++presses;
        event->accept();
    }
    /// As the window system gives it: to the window, with the time at which it happened.
    void send(QEvent::Type type, quint64 time) {
        QKeyEvent key(type, Qt::Key_Escape, Qt::NoModifier);
        key.setTimestamp(time);
        QCoreApplication::sendEvent(windowHandle(), &key);
    }
};

TEST(AnswerKeysTest, AnEscapeThatARepetitionBringsReachesNobody) {
    KeyCounter window;
    window.send(QEvent::KeyPress, 1000);
    window.send(QEvent::KeyRelease, 1500);
    window.send(QEvent::KeyPress, 1501);
    EXPECT_EQ(window.presses, 1);
    window.send(QEvent::KeyRelease, 1600);
    window.send(QEvent::KeyPress, 1700);
    EXPECT_EQ(window.presses, 2);
}

TEST(AnswerKeysTest, AKeyThatAScreenReaderHandsBackHasNoTimeAndIsNoRepetition) {
    KeyCounter window;
    for (int i = 0; i < 2; ++i) {
        window.send(QEvent::KeyPress, 0);
        window.send(QEvent::KeyRelease, 0);
    }
    EXPECT_EQ(window.presses, 2);
}

} // namespace

} // namespace planner
