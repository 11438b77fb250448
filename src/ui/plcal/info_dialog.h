// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace planner {

/// Shows the program's name and version and what each picture of the day cells means; returns when the user
/// has closed it.
void showInfoDialog(QWidget* parent);

} // namespace planner
