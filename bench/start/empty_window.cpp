// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
// The least that a program with a window does: what the planner's start is measured against.

#include "report_line.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QWidget>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QElapsedTimer timer;
    timer.start();
    QWidget window;
    window.showMaximized();
    planner::waitUntilPainted(window);
    const double shown = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    planner::reportPainted();
    planner::reportMilliseconds(shown);
    return 0;
}
