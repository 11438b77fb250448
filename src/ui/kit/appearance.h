// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/style.h"

#include <QColor>
#include <QFont>

class QApplication;

namespace planner {

/// Italian texts and dates, one style on every desktop, the program's font and icon. Before any window.
void setUpAppearance(QApplication& application);

QColor qtColor(Colore colore);

/// How much larger than usual the desktop has its letters, from 1 to 1.5. Of the time before the program set
/// its own; meant for after `setUpAppearance`.
double desktopFontFactor();

/// A font `factor` times its design-time size, which it shrinks below only as far as letters stay legible.
QFont qtFont(Carattere which, double factor);
QFont qtFont(const DescrizioneCarattere& described, double factor);

} // namespace planner
