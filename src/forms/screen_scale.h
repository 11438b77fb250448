// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/twips.h"

class QScreen;

namespace planner {

/// The room that a screen gives to windows, in twips of a 96 dpi screen.
Dimensioni roomOn(const QScreen& screen);

/// How much larger than designed letters are on the screen.
double fontFactorFor(const QScreen& screen);

} // namespace planner
