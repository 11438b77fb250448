// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/ports/qt_periodic_timer.h"

namespace planner {

namespace {

constexpr int IntervalMs = 500;

} // namespace

QtPeriodicTimer::QtPeriodicTimer() {
    m_timer.setInterval(IntervalMs);
}

void QtPeriodicTimer::onTick(std::function<void()> tick) {
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, std::move(tick));
}

void QtPeriodicTimer::setEnabled(bool enabled) {
    if (enabled) {
        m_timer.start();
    } else {
        m_timer.stop();
    }
}

} // namespace planner
