// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include <QClipboard>
#include <QGuiApplication>

#include <iostream>

/// Prints the text that it pastes.
int main(int argc, char* argv[]) {
    const QGuiApplication application(argc, argv);
    std::cout << QGuiApplication::clipboard()->text().toStdString();
    return 0;
}
