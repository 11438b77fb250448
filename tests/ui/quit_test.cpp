// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/guarded_application.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace planner {

namespace {

GuardedApplication& application() {
    return static_cast<GuardedApplication&>(*qApp);
}

TEST(QuitTest, TheSessionManagersWishIsPassedOn) {
    int wishes = 0;
    application().onQuit([&wishes] { ++wishes; });
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    application().onQuit({});
    EXPECT_EQ(wishes, 1);
}

TEST(QuitTest, TheLastWindowsCloseIsNoWishToEnd) {
    int wishes = 0;
    application().onQuit([&wishes] { ++wishes; });
    {
        QWidget window;
        window.show();
        window.close();
    }
    QCoreApplication::processEvents();
    application().onQuit({});
    EXPECT_EQ(wishes, 0);
}

} // namespace

} // namespace planner
