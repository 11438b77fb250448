// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/ports/qt_event_pump.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>

namespace planner {

void QtEventPump::waitAndProcess() {
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    // Without a running event loop nobody else carries out deleteLater().
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtEventPump::processFor(std::chrono::milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

void QtEventPump::wakeUp() {
    QCoreApplication::postEvent(qApp, new QEvent(QEvent::None));
}

void QtEventPump::flush() {
    QGuiApplication::sync();
}

} // namespace planner
