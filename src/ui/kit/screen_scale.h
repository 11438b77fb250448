// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/twips.h"

class QScreen;

namespace planner {

/// The room that a screen gives to windows, in twips of a 96 dpi screen.
Dimensioni roomOn(const QScreen& screen);

/// How much larger than designed letters are where positions are scaled by `scala`; they shrink only as far
/// as they stay legible, and are as large as the desktop's letters at least, see `desktopFontFactor`.
double fontFactorFor(const Scala& scala);
double fontFactorFor(const QScreen& screen);

/// Makes what the toolkit shows by itself (menus, tool tips, dialogs) write as large as the windows on the
/// screen.
void fitFontsTo(const QScreen& screen);

} // namespace planner
