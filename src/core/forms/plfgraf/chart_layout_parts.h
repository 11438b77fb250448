// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/chart_layout.h"

namespace planner {

/// Blank space between the parts of a chart, in pixels.
inline constexpr double ChartGap = 8;

/// What the two kinds of chart are laid out with.
struct ChartLayoutTask {
    const Grafico& grafico;
    const MeasureText& measure;
    ChartArea body; // what title and legend leave
    ChartLayout& layout;

    /// Adds a text centred on `centre`, as large as it is.
    void addText(ChartTextRole role, const std::string& text, ChartPoint centre) const;
    double lineHeight(ChartTextRole role) const { return measure(role, "0").height; }
};

/// Places the legend along the lower edge; returns the height where the chart's body ends.
double layoutLegend(const ChartLayoutTask& task);

/// Axes, grid lines, bars and their values.
void layoutBars(const ChartLayoutTask& task);

/// The texts along the bars, in the order of the values, and how they stand: upright where the level ones
/// would not fit their slots.
struct BarTexts {
    std::vector<std::string> labels; // UTF-8
    std::vector<std::string> values; // empty for a value that is not written
    bool labelsUpwards = false;
    bool valuesUpwards = false;
    double below = 0; // the labels' room below the plot, in pixels
    double above = 0; // the room above the plot, for the value of a bar that reaches its top
};

/// Decides how the texts stand, of bars that have `slotWidth` pixels each.
BarTexts measureBarTexts(const ChartLayoutTask& task, double slotWidth);

/// Places the labels below the plot; they thin out where there is no room for all.
void placeBarLabels(const ChartLayoutTask& task, const BarTexts& texts);

/// Writes the values above their bars, from left to right, where they cover neither a bar nor a value and
/// stay within the chart.
void placeBarValues(const ChartLayoutTask& task, const BarTexts& texts);

/// Slices, and their labels with lines to them.
void layoutPie(const ChartLayoutTask& task);

/// The point at a distance from the pie's middle, clockwise from its top.
inline constexpr double FullTurn = 360;
ChartPoint onCircle(const ChartLayout& layout, double degrees, double radius);

/// Every how many labels one can stand, of labels `size` long at places `spacing` apart: 1, 2, 5, 10, 20, …
std::size_t labelStep(double size, double spacing);

} // namespace planner
