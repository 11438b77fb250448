// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/chart_layout.h"

#include "archive/cp1252.h"
#include "forms/plfgraf/chart_layout_parts.h"
#include "forms/plfgraf/chart_texts.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace planner {

namespace {

constexpr double TitlePadding = 6;
constexpr double FullTurn = 360;

/// The title's box: in the middle of the chart, or of what `reserved` leaves beside itself, or below it.
ChartArea titleBox(ChartSize size, ChartSize text, const ChartArea& reserved) {
    ChartArea box{0, ChartGap, std::clamp(size.width, 0.0, text.width + 4 * TitlePadding),
                  text.height + 2 * TitlePadding};
    box.x = (size.width - box.width) / 2;
    ChartArea withGap = box;
    withGap.width += ChartGap;
    if (!reserved.empty() && withGap.overlaps(reserved)) {
        box.x = std::max(0.0, reserved.x - ChartGap - box.width) / 2;
        withGap.x = box.x;
        if (withGap.overlaps(reserved)) {
            box.x = (size.width - box.width) / 2;
            box.y = reserved.bottom() + ChartGap;
        }
    }
    return box;
}

/// Places the title; returns the height where the chart's body begins.
double layoutTitle(const ChartLayoutTask& task, const ChartArea& reserved) {
    ChartLayout& layout = task.layout;
    double top = reserved.empty() ? 0 : reserved.bottom();
    if (!task.grafico.TitleText.empty()) {
        const std::string text = utf8FromCp1252(task.grafico.TitleText);
        layout.title = titleBox(layout.size, task.measure(ChartTextRole::title, text), reserved);
        layout.texts.push_back({ChartTextRole::title, text, layout.title});
        top = std::max(top, layout.title.bottom());
    }
    return top + ChartGap;
}

/// Places the heading below `top`; returns the height where the chart's body begins.
double layoutHeading(const ChartLayoutTask& task, double top) {
    const std::string text = testoIntestazione(task.grafico);
    if (text.empty()) {
        return top;
    }
    ChartLayout& layout = task.layout;
    const ChartSize size = task.measure(ChartTextRole::heading, text);
    const double width = std::min(size.width, std::max(layout.size.width - 2 * ChartGap, 0.0));
    const ChartArea area{(layout.size.width - width) / 2, top, width, size.height};
    layout.texts.push_back({ChartTextRole::heading, text, area});
    return area.bottom() + ChartGap;
}

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

/// Places the legend along the lower edge; returns the height where the chart's body ends.
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

ChartArea inside(const ChartArea& area, double margin) {
    return {area.x + margin, area.y + margin, std::max(area.width - 2 * margin, 1.0),
            std::max(area.height - 2 * margin, 1.0)};
}

/// Legend, and bars or pie in what it leaves below `top`.
void layoutBody(ChartLayoutTask& task, double top) {
    ChartLayout& layout = task.layout;
    const double bottom = layoutLegend(task);
    layout.frame = {ChartGap, top, std::max(layout.size.width - 2 * ChartGap, 1.0),
                    std::max(bottom - top, 1.0)};
    task.body = inside(layout.frame, ChartGap);
    if (task.grafico.tipo == TipoGrafico::Torta) {
        layoutPie(task);
    } else {
        layoutBars(task);
    }
}

double radians(double degrees) {
    return degrees * std::numbers::pi / (FullTurn / 2);
}

std::optional<std::size_t> sliceAt(const ChartLayout& layout, ChartPoint point) {
    const double dx = point.x - layout.pieCentre.x;
    const double dy = point.y - layout.pieCentre.y;
    if (std::hypot(dx, dy) > layout.pieRadius) {
        return std::nullopt;
    }
    double angle = std::atan2(dx, -dy) * (FullTurn / 2) / std::numbers::pi;
    angle = angle < 0 ? angle + FullTurn : angle;
    for (const ChartSlice& slice : layout.slices) {
        if (angle < slice.start + slice.span) {
            return slice.number;
        }
    }
    return std::nullopt;
}

/// The box around a slice: its corners, and the circle's outermost points that it holds.
ChartArea boxAround(const ChartLayout& layout, const ChartSlice& slice) {
    ChartPoint low = layout.pieCentre;
    ChartPoint high = layout.pieCentre;
    const auto include = [&](double degrees) {
        const double x = layout.pieCentre.x + layout.pieRadius * std::sin(radians(degrees));
        const double y = layout.pieCentre.y - layout.pieRadius * std::cos(radians(degrees));
        low = {std::min(low.x, x), std::min(low.y, y)};
        high = {std::max(high.x, x), std::max(high.y, y)};
    };
    include(slice.start);
    include(slice.start + slice.span);
    for (const double quarter : {90.0, 180.0, 270.0}) {
        if (quarter > slice.start && quarter < slice.start + slice.span) {
            include(quarter);
        }
    }
    return {low.x, low.y, high.x - low.x, high.y - low.y};
}

} // namespace

void ChartLayoutTask::addText(ChartTextRole role, const std::string& text, ChartPoint centre) const {
    const ChartSize size = measure(role, text);
    layout.texts.push_back(
        {role, text, {centre.x - size.width / 2, centre.y - size.height / 2, size.width, size.height}});
}

std::string ChartLayoutTask::labelOf(std::size_t number) const {
    return utf8FromCp1252(grafico.serie.size() > 1 ? grafico.serie[grafico.serieDi(number)].etichetta
                                                   : grafico.etichette[grafico.rigaDi(number)]);
}

std::size_t labelStep(double size, double spacing) {
    std::size_t step = 1;
    for (std::size_t decade = 1; decade < 1'000'000'000; decade *= 10) {
        for (const std::size_t factor : {std::size_t{1}, std::size_t{2}, std::size_t{5}}) {
            step = decade * factor;
            if (size <= spacing * static_cast<double>(step)) {
                return step;
            }
        }
    }
    return step;
}

ChartLayout layoutChart(const Grafico& grafico, ChartSize size, const ChartArea& reserved,
                        const MeasureText& measure) {
    ChartLayout layout;
    layout.size = size;
    ChartLayoutTask task{grafico, measure, {}, layout};
    layoutBody(task, layoutTitle(task, reserved));
    return layout;
}

ChartLayout layoutSheet(const Grafico& grafico, ChartSize size, const MeasureText& measure) {
    ChartLayout layout;
    layout.size = size;
    ChartLayoutTask task{grafico, measure, {}, layout};
    layoutBody(task, layoutHeading(task, layoutTitle(task, {})));
    return layout;
}

std::optional<std::size_t> valueAt(const ChartLayout& layout, ChartPoint point) {
    if (layout.bars.empty()) {
        return sliceAt(layout, point);
    }
    if (!layout.plot.contains(point)) {
        return std::nullopt;
    }
    const double share = (point.x - layout.plot.x) / layout.plot.width;
    const auto count = layout.bars.size();
    return std::min(static_cast<std::size_t>(share * static_cast<double>(count)), count - 1);
}

ChartArea areaOf(const ChartLayout& layout, std::size_t number) {
    if (number < layout.bars.size()) {
        return layout.bars[number].slot;
    }
    for (const ChartSlice& slice : layout.slices) {
        if (slice.number == number) {
            return boxAround(layout, slice);
        }
    }
    return {};
}

} // namespace planner
