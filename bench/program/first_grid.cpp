// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
// Starts as the planner does for its first request, a month, and serves a second one in the same window.

#include "frame/frame_times.h"
#include "frame/sample_planner.h"
#include "ui/kit/appearance.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    if (argc != 2) {
        return 2;
    }
    int toolkitArguments = 1;
    QApplication application(toolkitArguments, argv);
    planner::setUpAppearance(application);
    planner::SamplePlanner sample(argv[1]);
    sample.show();
    sample.finestre().finestra.hide();
    planner::paintAll();
    sample.show();
    return 0;
}
