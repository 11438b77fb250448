// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <set>
#include <string>

namespace planner::e2e {

/// A rectangle in pixels.
struct Area {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const Area&, const Area&) = default;
};

/// A picture of a window.
class Immagine {
public:
    using Colour = std::array<unsigned char, 3>; // red, green, blue

    /// From a PPM file with 8 bits for each of the colours; throws when it is none.
    explicit Immagine(std::string ppm);

    int width() const { return m_width; }
    int height() const { return m_height; }
    Colour at(int x, int y) const;
    /// The different colours within the area.
    std::set<Colour> colours(const Area& area) const;

    /// A part of the picture as a picture of its own.
    Immagine part(const Area& area) const;

    friend bool operator==(const Immagine&, const Immagine&) = default;

private:
    std::string m_ppm;
    int m_width = 0;
    int m_height = 0;
    std::size_t m_pixels = 0; // where they begin
};

} // namespace planner::e2e
