// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/chart_layout.h"

#include "archive/cp1252.h"
#include "forms/plfgraf/chart_layout_parts.h"
#include "forms/plfgraf/chart_texts.h"

#include <algorithm>

namespace planner {

namespace {

constexpr double TitlePadding = 6;

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

} // namespace

void ChartLayoutTask::addText(ChartTextRole role, const std::string& text, ChartPoint centre) const {
    const ChartSize size = measure(role, text);
    layout.texts.push_back(
        {role, text, {centre.x - size.width / 2, centre.y - size.height / 2, size.width, size.height}});
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

} // namespace planner
