// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"
#include "forms/plfgraf/chart_layout_parts.h"

#include <algorithm>

namespace planner {

namespace {

/// A row of the legend being filled from left to right.
struct LegendRow {
    std::size_t firstEntry, firstText;
    double width = 0;
};

void centreRow(ChartLayout& layout, const LegendRow& row) {
    const double shift = (layout.size.width - row.width) / 2;
    for (std::size_t i = row.firstEntry; i < layout.legend.size(); ++i) {
        layout.legend[i].swatch.x += shift;
    }
    for (std::size_t i = row.firstText; i < layout.texts.size(); ++i) {
        layout.texts[i].area.x += shift;
    }
}

/// Lays the legend out in rows from y = 0 on; returns its height.
double fillLegend(const ChartLayoutTask& task) {
    ChartLayout& layout = task.layout;
    const double line = task.lineHeight(ChartTextRole::legend);
    const double swatch = line * 0.8;
    const double available = std::max(layout.size.width - 2 * ChartGap, swatch);
    LegendRow row{layout.legend.size(), layout.texts.size()};
    double y = 0;
    for (std::size_t s = 0; s < task.grafico.serie.size(); ++s) {
        const std::string text = utf8FromCp1252(task.grafico.serie[s].etichetta);
        const double textWidth = std::min(task.measure(ChartTextRole::legend, text).width,
                                          std::max(available - swatch - ChartGap / 2, 0.0));
        const double entryWidth = swatch + ChartGap / 2 + textWidth;
        if (row.width > 0 && row.width + 2 * ChartGap + entryWidth > available) {
            centreRow(layout, row);
            row = {layout.legend.size(), layout.texts.size()};
            y += line + ChartGap / 2;
        }
        const double x = row.width > 0 ? row.width + 2 * ChartGap : 0;
        layout.legend.push_back({s, {x, y + (line - swatch) / 2, swatch, swatch}});
        layout.texts.push_back(
            {ChartTextRole::legend, text, {x + swatch + ChartGap / 2, y, textWidth, line}});
        row.width = x + entryWidth;
    }
    centreRow(layout, row);
    return y + line;
}

} // namespace

double layoutLegend(const ChartLayoutTask& task) {
    ChartLayout& layout = task.layout;
    const std::size_t firstText = layout.texts.size();
    const double height = fillLegend(task);
    const double top = layout.size.height - ChartGap - height;
    for (ChartLegendEntry& entry : layout.legend) {
        entry.swatch.y += top;
    }
    for (std::size_t i = firstText; i < layout.texts.size(); ++i) {
        layout.texts[i].area.y += top;
    }
    return top - ChartGap;
}

} // namespace planner
