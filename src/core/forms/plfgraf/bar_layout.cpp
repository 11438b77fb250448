// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"
#include "forms/plfgraf/chart_layout_parts.h"
#include "forms/plfgraf/chart_texts.h"

#include <algorithm>

namespace planner {

namespace {

constexpr double BarShare = 0.7;     // of its slot
constexpr double LabelSpread = 1.25; // of an axis label's height, so that the next one can stand

/// Every how many divisions of the value axis one has its line and label.
std::size_t divisionStep(const ChartLayoutTask& task) {
    const double spacing = task.layout.plot.height / std::max<double>(task.grafico.asseY.MajorDivision, 1);
    return labelStep(task.lineHeight(ChartTextRole::axisLabel) * LabelSpread, spacing);
}

std::string divisionText(const AsseOre& axis, int division) {
    return testoDecimale(axis.MajorDivision > 0 ? axis.Maximum * division / axis.MajorDivision : 0);
}

/// Room for the numbers of the value axis; the last one is the longest.
double divisionTextWidth(const ChartLayoutTask& task) {
    const AsseOre& axis = task.grafico.asseY;
    return task.measure(ChartTextRole::axisLabel, divisionText(axis, axis.MajorDivision)).width;
}

/// The plot between the axes' labels and titles, as yet as high as the chart's body.
ChartArea plotWidth(const ChartLayoutTask& task) {
    const double title = task.lineHeight(ChartTextRole::axisTitle);
    const double left = title + ChartGap + divisionTextWidth(task) + ChartGap;
    return {task.body.x + left, task.body.y, std::max(task.body.width - left - ChartGap, 1.0),
            task.body.height};
}

/// Leaves room above the plot for the value of the highest bar, and below it for labels and title.
void lowerPlot(const ChartLayoutTask& task, const BarTexts& texts) {
    const double title = task.lineHeight(ChartTextRole::axisTitle);
    const double bottom = ChartGap / 2 + texts.below + ChartGap / 2 + title;
    ChartArea& plot = task.layout.plot;
    plot.y += texts.above;
    plot.height = std::max(task.body.height - texts.above - bottom, 1.0);
}

void placeAxisTitles(const ChartLayoutTask& task) {
    const ChartArea& plot = task.layout.plot;
    const std::string x = utf8FromCp1252(task.grafico.asseX);
    const std::string y = utf8FromCp1252(task.grafico.asseY.titolo);
    const double title = task.lineHeight(ChartTextRole::axisTitle);
    task.addText(ChartTextRole::axisTitle, x, {plot.centre().x, task.body.bottom() - title / 2});
    task.layout.texts.push_back(
        {ChartTextRole::axisTitle, y, {task.body.x, plot.y, title, plot.height}, /*upwards=*/true});
}

void placeMinorLines(const ChartLayoutTask& task, double spacing, double y) {
    const int parts = task.grafico.asseY.MinorDivision;
    for (int part = 1; part < parts; ++part) {
        task.layout.minorLines.push_back(y - spacing * part / parts);
    }
}

void placeValueAxis(const ChartLayoutTask& task) {
    ChartLayout& layout = task.layout;
    const AsseOre& axis = task.grafico.asseY;
    const int step = static_cast<int>(std::min<std::size_t>(divisionStep(task), INT16_MAX));
    const double spacing = layout.plot.height / std::max<double>(axis.MajorDivision, 1);
    for (int division = 0; division <= axis.MajorDivision; division += step) {
        const double y = layout.plot.bottom() - spacing * division;
        const std::string text = divisionText(axis, division);
        const double width = task.measure(ChartTextRole::axisLabel, text).width;
        layout.majorLines.push_back(y);
        task.addText(ChartTextRole::axisLabel, text, {layout.plot.x - ChartGap - width / 2, y});
        if (step == 1 && division < axis.MajorDivision) {
            placeMinorLines(task, spacing, y);
        }
    }
}

void placeBars(const ChartLayoutTask& task) {
    const ChartArea& plot = task.layout.plot;
    const std::size_t count = task.grafico.numValori();
    const double maximum = task.grafico.asseY.Maximum;
    for (std::size_t number = 0; number < count; ++number) {
        const double value = task.grafico.valore(number);
        // An axis may end below its values, even at 0: such bars fill the plot.
        const double share = value <= 0 ? 0 : value >= maximum ? 1 : value / maximum;
        const double slotWidth = plot.width / static_cast<double>(count);
        const ChartArea slot{plot.x + slotWidth * static_cast<double>(number), plot.y, slotWidth,
                             plot.height};
        const double height = plot.height * share;
        task.layout.bars.push_back(
            {{slot.x + slotWidth * (1 - BarShare) / 2, plot.bottom() - height, slotWidth * BarShare, height},
             slot});
    }
}

} // namespace

void layoutBars(const ChartLayoutTask& task) {
    task.layout.plot = plotWidth(task);
    const auto count = std::max<std::size_t>(task.grafico.numValori(), 1);
    const BarTexts texts = measureBarTexts(task, task.layout.plot.width / static_cast<double>(count));
    lowerPlot(task, texts);
    placeAxisTitles(task);
    placeValueAxis(task);
    placeBars(task);
    placeBarLabels(task, texts);
    placeBarValues(task, texts);
}

} // namespace planner
