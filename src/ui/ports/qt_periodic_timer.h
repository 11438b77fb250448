// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/periodic_timer.h"

#include <QTimer>

#include <functional>

namespace planner {

/// The timer of the polling mode.
class QtPeriodicTimer : public PeriodicTimer {
public:
    QtPeriodicTimer();
    /// What each tick does, from now on; called once.
    void onTick(std::function<void()> tick);
    void setEnabled(bool enabled) override;

private:
    QTimer m_timer;
};

} // namespace planner
