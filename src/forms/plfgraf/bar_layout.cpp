// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"
#include "forms/plfgraf/chart_layout_parts.h"
#include "forms/plfgraf/chart_texts.h"

#include <algorithm>

namespace planner {

namespace {

constexpr double BarShare = 0.7;      // of its slot
constexpr double LabelSpread = 1.25;  // of an axis label's height, so that the next one can stand
constexpr double NarrowestSlot = 0.5; // below it, values are not written
constexpr double ValueDistance = 2;   // of a value from its bar

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

/// The plot between the axes' labels and titles, with room above it for the value of the highest bar.
ChartArea plotArea(const ChartLayoutTask& task) {
    const double label = task.lineHeight(ChartTextRole::axisLabel);
    const double title = task.lineHeight(ChartTextRole::axisTitle);
    const double left = title + ChartGap + divisionTextWidth(task) + ChartGap;
    const double top = task.lineHeight(ChartTextRole::value) + 2 * ValueDistance;
    const double bottom = ChartGap / 2 + label + ChartGap / 2 + title;
    return {task.body.x + left, task.body.y + top, std::max(task.body.width - left - ChartGap, 1.0),
            std::max(task.body.height - top - bottom, 1.0)};
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

void placeCategoryLabels(const ChartLayoutTask& task) {
    const ChartLayout& layout = task.layout;
    std::vector<std::string> labels;
    double widest = 0;
    for (std::size_t number = 0; number < layout.bars.size(); ++number) {
        labels.push_back(task.labelOf(number));
        widest = std::max(widest, task.measure(ChartTextRole::axisLabel, labels.back()).width);
    }
    const double spacing = layout.bars.empty() ? 1 : layout.bars.front().slot.width;
    const std::size_t step = labelStep(widest + ChartGap, spacing);
    const double y = layout.plot.bottom() + ChartGap / 2 + task.lineHeight(ChartTextRole::axisLabel) / 2;
    for (std::size_t number = 0; number < labels.size(); number += step) {
        task.addText(ChartTextRole::axisLabel, labels[number], {layout.bars[number].slot.centre().x, y});
    }
}

/// True when the text would cover a bar.
bool coversBar(const ChartLayout& layout, const ChartArea& text) {
    const double slotWidth = layout.bars.front().slot.width;
    const auto slotAt = [&](double x) {
        const double place = std::max((x - layout.plot.x) / slotWidth, 0.0);
        return std::min(static_cast<std::size_t>(place), layout.bars.size() - 1);
    };
    const auto first = layout.bars.begin() + static_cast<std::ptrdiff_t>(slotAt(text.x));
    const auto last = layout.bars.begin() + static_cast<std::ptrdiff_t>(slotAt(text.right())) + 1;
    return std::any_of(first, last, [&text](const ChartBar& bar) { return bar.area.overlaps(text); });
}

/// Impossible hours from a file have a hundred digits.
bool leavesChart(const ChartLayout& layout, const ChartArea& text) {
    return text.x < 0 || text.right() > layout.size.width;
}

/// Writes the values above their bars, from left to right, where they cover neither a bar nor a value and
/// stay within the chart.
void placeValues(const ChartLayoutTask& task) {
    ChartLayout& layout = task.layout;
    if (layout.bars.empty() || layout.bars.front().slot.width < NarrowestSlot) {
        return;
    }
    std::vector<ChartArea> placed;
    double widest = 0;
    for (std::size_t number = 0; number < layout.bars.size(); ++number) {
        const ChartBar& bar = layout.bars[number];
        const std::string text = testoOre(task.grafico.valore(number));
        const ChartSize size = task.measure(ChartTextRole::value, text);
        const ChartArea area{bar.slot.centre().x - size.width / 2, bar.area.y - ValueDistance - size.height,
                             size.width, size.height};
        widest = std::max(widest, size.width);
        const auto near = std::find_if(placed.begin(), placed.end(),
                                       [&](const ChartArea& each) { return each.x + widest > area.x; });
        placed.erase(placed.begin(), near); // they lie too far left for all that follow, too
        const bool free = !leavesChart(layout, area) && !coversBar(layout, area) &&
                          std::none_of(placed.begin(), placed.end(),
                                       [&area](const ChartArea& each) { return each.overlaps(area); });
        if (free) {
            placed.push_back(area);
            layout.texts.push_back({ChartTextRole::value, text, area});
        }
    }
}

} // namespace

void layoutBars(const ChartLayoutTask& task) {
    task.layout.plot = plotArea(task);
    placeAxisTitles(task);
    placeValueAxis(task);
    placeBars(task);
    placeCategoryLabels(task);
    placeValues(task);
}

} // namespace planner
