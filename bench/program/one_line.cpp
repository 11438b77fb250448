// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
// The least that a program with a window of text does: what the planner's times are measured against. Shows a
// line of text; a line that it reads takes the window away, the next one shows another.

#include <QApplication>
#include <QLabel>
#include <QSocketNotifier>

#include <memory>
#include <unistd.h>

namespace {

std::unique_ptr<QLabel> makeWindow() {
    auto window = std::make_unique<QLabel>(QStringLiteral("Una riga di testo"));
    window->showMaximized();
    return window;
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    auto window = makeWindow();
    const QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        char line = 0;
        if (read(STDIN_FILENO, &line, 1) <= 0) {
            QApplication::quit();
        } else if (window) {
            window.reset();
        } else {
            window = makeWindow();
        }
    });
    return QApplication::exec();
}
