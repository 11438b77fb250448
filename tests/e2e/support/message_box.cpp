// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/appearance.h"
#include "ui/kit/screen_scale.h"
#include "ui/ports/qt_message_boxes.h"

#include <QApplication>

#include <span>

/// Shows one message box of the planner: "critical" or "information", and the text.
int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    planner::setUpAppearance(application);
    planner::fitFontsTo(*QGuiApplication::primaryScreen());
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() != 3) {
        return 2;
    }
    planner::QtMessageBoxes boxes;
    if (std::string_view(arguments[1]) == "critical") {
        boxes.critical(arguments[2]);
    } else {
        boxes.information(arguments[2]);
    }
    return 0;
}
