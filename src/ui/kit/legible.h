// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

namespace planner {

/// How far texts must stand out from their ground, and edges and what cannot be used: a little more than 3,
/// since round edges are smoothed.
inline constexpr double TextContrast = 4.5;
inline constexpr double EdgeContrast = 3.3;

/// The contrast of two opaque colours, from 1 to 21.
double contrastOf(const QColor& a, const QColor& b);

/// Has every text of a desktop's colours stand out: the chosen row becomes darker (or lighter) under its
/// text, and a text that cannot be used, or invites to write, comes nearer to the others.
void makeLegible(QPalette& palette);

/// A line that stands out from windows and fields, and one in the colour of what is chosen that does.
QColor edgeColor(const QPalette& palette);
QColor focusColor(const QPalette& palette);

} // namespace planner
