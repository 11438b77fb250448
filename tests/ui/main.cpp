// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/qt/appearance.h"
#include "platform/qt/guarded_application.h"

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    planner::GuardedApplication application(argc, argv);
    planner::setUpAppearance(application);
    return RUN_ALL_TESTS();
}
