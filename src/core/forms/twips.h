// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

namespace planner {

/// Twips per pixel of a 96 dpi screen, on which all design-time positions rest.
inline constexpr int TwipsPerPixel = 15;

struct Dimensioni {
    int width, height;
    friend constexpr bool operator==(const Dimensioni&, const Dimensioni&) = default;
};

struct Rettangolo {
    int Left, Top, Width, Height;
    friend constexpr bool operator==(const Rettangolo&, const Rettangolo&) = default;
};

/// The screen that the windows were designed for, in twips.
inline constexpr Dimensioni ProgettoSchermo{15360, 12300};

/// The factors that turn design-time positions into screen positions.
struct Scala {
    float ScalaX = 1, ScalaY = 1;

    /// The smaller of the two.
    float ScalaMin() const { return ScalaX < ScalaY ? ScalaX : ScalaY; }
};

/// The ratios of a window's new size to its design-time size. Sizes below one twip count as one.
Scala scalaPer(Dimensioni nuova, Dimensioni progetto);

} // namespace planner
