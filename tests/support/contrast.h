// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/style.h"

#include <array>
#include <string_view>

namespace planner::test {

/// How far text must stand out from its ground, and a picture, a frame or a line that means something.
inline constexpr double TextContrast = 4.5;
inline constexpr double ShapeContrast = 3;

/// A way to see colours: for each channel of the light, in red, green and blue, what of them arrives.
struct Vista {
    std::string_view nome;
    std::array<std::array<double, 3>, 3> matrice;
};

/// Ordinary sight, and the three deficiencies in full, as Machado, Oliveira and Fernandes model them.
inline constexpr std::array<Vista, 4> Viste{
    {{"ordinary", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
     {"protanopia",
      {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}}},
     {"deuteranopia",
      {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}}},
     {"tritanopia",
      {{{1.255528, -0.076749, -0.178779},
        {-0.078411, 0.930809, 0.147602},
        {0.004733, 0.691367, 0.303900}}}}}};

/// The contrast of two colours, 1 to 21, as seen.
double contrasto(Rgb a, Rgb b, const Vista& vista = Viste.front());

} // namespace planner::test
