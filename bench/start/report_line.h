// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace planner {

/// Returns when a window that is being shown is on the screen, painted.
void waitUntilPainted(QWidget& window);

/// Tells the benchmark that the first window is painted, and what the program takes of memory by now.
void reportPainted();

/// Tells the benchmark how long something took that followed.
void reportMilliseconds(double milliseconds);

} // namespace planner
