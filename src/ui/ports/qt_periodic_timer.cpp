// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/ports/qt_periodic_timer.h"

namespace planner {

namespace {

constexpr int IntervalMs = 500;

} // namespace

QtPeriodicTimer::QtPeriodicTimer(std::function<void()> tick) {
    m_timer.setInterval(IntervalMs);
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
