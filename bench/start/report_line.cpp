// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "report_line.h"

#include <QApplication>
#include <QFile>
#include <QWidget>
#include <QWindow>

#include <cstdio>

namespace planner {

namespace {

/// Kilobytes in memory, pages shared with other programs included.
long residentKilobytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray text = status.readAll();
    const QByteArray key("VmRSS:");
    const qsizetype at = text.indexOf(key);
    return at < 0 ? 0 : text.mid(at + key.size()).trimmed().split(' ').front().toLong();
}

} // namespace

void waitUntilPainted(QWidget& window) {
    while (!window.windowHandle()->isExposed()) { // the window is painted while it is being exposed
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QGuiApplication::sync();
}

void reportPainted() {
    std::printf("painted\n");
    std::fflush(stdout);
    std::printf("kilobytes %ld\n", residentKilobytes());
}

void reportMilliseconds(double milliseconds) {
    std::printf("milliseconds %f\n", milliseconds);
    std::fflush(stdout);
}

} // namespace planner
