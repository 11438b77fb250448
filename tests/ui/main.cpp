// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/appearance.h"
#include "ui/kit/guarded_application.h"

#include <QTemporaryFile>

#include <gmock/gmock.h>

namespace {

constexpr const char* ScreenVariable = "PLANNER_TEST_SCREEN"; // the screen's size, "WIDTHxHEIGHT"
constexpr const char* FontVariable = "PLANNER_TEST_FONT";     // the desktop's letters, in points

/// The description of the toolkit's offscreen platform: one screen of the size asked for.
QByteArray screenDescription() {
    const QByteArray wanted = qEnvironmentVariable(ScreenVariable, QStringLiteral("1366x768")).toLatin1();
    const QList<QByteArray> size = wanted.split('x');
    return R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": )" + size.value(0) +
           R"(, "height": )" + size.value(1) + R"(, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
}

bool offscreen() {
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM", QStringLiteral("offscreen"));
    return platform == QLatin1String("offscreen");
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    QTemporaryFile screen;
    if (offscreen() && screen.open() && screen.write(screenDescription()) > 0 && screen.flush()) {
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toLocal8Bit());
    }
    planner::GuardedApplication application(argc, argv);
    if (const double points = qEnvironmentVariable(FontVariable).toDouble(); points > 0) {
        QFont desktop = QApplication::font();
        desktop.setPointSizeF(points);
        QApplication::setFont(desktop);
    }
    planner::setUpAppearance(application);
    return RUN_ALL_TESTS();
}
