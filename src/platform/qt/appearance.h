// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/style.h"

#include <QColor>
#include <QFont>
#include <QIcon>

class QApplication;

namespace planner {

/// Italian texts and dates, one style on every desktop, the program's font and icon. Before any window.
void setUpAppearance(QApplication& application);

QColor qtColor(Colore colore);

/// The font for a place in a grid, `factor` times its design-time size but never smaller.
QFont qtFont(Carattere which, double factor);
QFont qtFont(const DescrizioneCarattere& described, double factor);

/// A picture of the program's resources by its name.
QIcon qtIcon(std::string_view name);

} // namespace planner
