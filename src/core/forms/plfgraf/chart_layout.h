// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/grafico.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace planner {

/// A place in a chart, in pixels from its top left corner.
struct ChartPoint {
    double x = 0, y = 0;
};

struct ChartSize {
    double width = 0, height = 0;
};

struct ChartArea {
    double x = 0, y = 0, width = 0, height = 0;

    double right() const { return x + width; }
    double bottom() const { return y + height; }
    ChartPoint centre() const { return {x + width / 2, y + height / 2}; }
    bool empty() const { return !(width > 0 && height > 0); }
    bool contains(ChartPoint p) const { return p.x >= x && p.x < right() && p.y >= y && p.y < bottom(); }
    /// Touching edges do not overlap.
    bool overlaps(const ChartArea& other) const {
        return x < other.right() && other.x < right() && y < other.bottom() && other.y < bottom();
    }
};

/// What a text in a chart is for; each has its font.
enum class ChartTextRole : std::uint8_t { title, axisTitle, axisLabel, legend, value, heading };

/// The size of a text, UTF-8, in the font of its role. The screen knows it; tests make it up.
using MeasureText = std::function<ChartSize(ChartTextRole, const std::string&)>;

/// A text and where it stands; it is centred in its area, and shortened where the area is too narrow.
struct PlacedText {
    ChartTextRole role;
    std::string text; // UTF-8
    ChartArea area;
    bool upwards = false; // reads from bottom to top
};

struct ChartBar {
    ChartArea area; // no height for a value of 0
    ChartArea slot; // the bar's share of the plot
};

struct ChartSlice {
    std::size_t number; // of the value
    double start;       // degrees clockwise from twelve o'clock
    double span;
    Rgb colour;                          // of its series; the slices of one series are told apart by shades
    std::optional<std::size_t> label;    // index into `texts`; none where there was no room
    std::array<ChartPoint, 3> labelLine; // from the slice, bent once, to its label
};

struct ChartLegendEntry {
    std::size_t series;
    ChartArea swatch;
};

/// Where everything in a chart stands.
struct ChartLayout {
    ChartSize size;
    ChartArea title; // the box around the title; empty without a title
    ChartArea frame; // the plot with its axes, or the pie with its labels
    ChartArea plot;
    std::vector<double> majorLines; // heights of the grid's lines
    std::vector<double> minorLines;
    std::vector<PlacedText> texts;
    std::vector<ChartLegendEntry> legend;
    std::vector<ChartBar> bars; // one per value, in the order of the values; none in a pie
    ChartPoint pieCentre;
    double pieRadius = 0;
    std::vector<ChartSlice> slices; // only the values above 0
};

/// Lays a chart out in `size`, and keeps title, values and labels clear of `reserved`, which floats over its
/// top right corner. Any size is fine; where there is no room, texts are left out.
ChartLayout layoutChart(const Grafico& grafico, ChartSize size, const ChartArea& reserved,
                        const MeasureText& measure);

/// Lays a chart out as it stands in files and on paper: with its heading below the title.
ChartLayout layoutSheet(const Grafico& grafico, ChartSize size, const MeasureText& measure);

/// The value whose bar, with all the height of its slot, or slice is at the point.
std::optional<std::size_t> valueAt(const ChartLayout& layout, ChartPoint point);

/// The area that shows a value: the slot of a bar, the box around a slice; empty for a value without either.
ChartArea areaOf(const ChartLayout& layout, std::size_t number);

} // namespace planner
