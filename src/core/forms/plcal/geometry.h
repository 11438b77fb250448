// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/twips.h"

#include <array>
#include <string_view>
#include <vector>

namespace planner {

/// A control of the planner window as designed, in twips. Names starting with "didascalia" are static
/// captions.
struct ControlloProgetto {
    std::string_view nome;
    Rettangolo posizione;
    bool pulsanteComando = false; // not scaled: it is placed when the window is activated
};

/// The planner window's size as designed: it fills the screen.
inline constexpr Dimensioni ProgettoPlcal = ProgettoSchermo;

/// Rescales every control but the command buttons.
std::vector<ControlloProgetto> Ctr_Refresh(std::vector<ControlloProgetto> controlli, const Scala& scala);

/// Where the n-th boundary between columns or rows of the given sizes falls, in whole pixels: rounding is
/// shared out so that the sum of all sizes is never off by more than half a pixel.
std::vector<int> pixelSizes(const std::vector<int>& twips, float scala);

/// Pixels of a length in twips.
int pixels(int twips, float scala);

/// A place in twips as pixels: its edges are rounded, so that neighbours stay neighbours.
Rettangolo pixels(const Rettangolo& twips, const Scala& scala);

/// The place of a period button in a header cell: a quarter of the row's height from its top where the row is
/// high enough, else centred; the previous-period button stands at the left, the next-period button
/// right-aligned. All in pixels.
Rettangolo pulsantePeriodo(const Rettangolo& cella, bool successivo, float scalaX);

} // namespace planner
