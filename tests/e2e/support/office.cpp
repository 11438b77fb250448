// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QMainWindow>
#include <QPushButton>

/// The office's program, as far as it is seen and heard: a window with the title given, and a button in it.
int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QApplication::arguments().value(1));
    window.setCentralWidget(new QPushButton(QStringLiteral("Clienti")));
    window.show();
    return QApplication::exec();
}
