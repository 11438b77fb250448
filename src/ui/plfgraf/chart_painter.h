// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/chart_layout.h"
#include "ui/kit/fitting_font.h"

#include <array>

class QPainter;

namespace planner {

/// Paints a chart, black on white whatever the desktop's theme, on any device: the lengths are those of a
/// layout, and fonts have sizes in pixels so that they scale with it.
class ChartPainter {
public:
    /// `fontFactor` makes all texts larger than designed.
    ChartPainter(const Grafico& grafico, double fontFactor);

    MeasureText measure() const;

    void paint(QPainter& painter, const ChartLayout& layout) const;
    /// Draws a line around a value, on top of the chart; nothing where the value has neither bar nor slice.
    static void pointOut(QPainter& painter, const ChartLayout& layout, std::size_t number);

private:
    void paintTitleFrame(QPainter& painter, const ChartLayout& layout) const;
    void paintPlotFrame(QPainter& painter, const ChartLayout& layout) const;
    void paintLines(QPainter& painter, const ChartLayout& layout) const;
    void paintBars(QPainter& painter, const ChartLayout& layout) const;
    void paintAxes(QPainter& painter, const ChartLayout& layout) const;
    void paintSlices(QPainter& painter, const ChartLayout& layout) const;
    static void fillSlices(QPainter& painter, const ChartLayout& layout);
    static void paintSliceEdges(QPainter& painter, const ChartLayout& layout);
    void paintLabelBoxes(QPainter& painter, const ChartLayout& layout) const;
    void paintLegend(QPainter& painter, const ChartLayout& layout) const;
    void paintTexts(QPainter& painter, const ChartLayout& layout) const;
    void paintText(QPainter& painter, const PlacedText& placed, bool onPaper) const;

    const Letters& letters(ChartTextRole role) const { return m_letters.at(static_cast<std::size_t>(role)); }

    const Grafico& m_grafico;
    std::array<Letters, 6> m_letters; // by role
};

} // namespace planner
