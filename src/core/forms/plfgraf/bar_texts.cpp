// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"
#include "forms/plfgraf/chart_layout_parts.h"
#include "forms/plfgraf/chart_texts.h"

#include <algorithm>
#include <tuple>

namespace planner {

namespace {

constexpr double NarrowestSlot = 0.5;     // below it, values are not written
constexpr double ValueDistance = 2;       // of a value from its bar, and from the next value
constexpr double UprightLine = 0.8;       // of a line's height: upright texts are digits and codes
constexpr double MostRoom = 1.0 / 3;      // of the chart's body, for upright texts above or below the plot
constexpr std::string_view Zero = "0:00"; // says nothing that the missing bar does not

double widthOf(const ChartLayoutTask& task, ChartTextRole role, const std::string& text) {
    return text.empty() ? 0 : task.measure(role, text).width;
}

/// The width of the widest text, of those not wider than `limit`.
double widestOf(const ChartLayoutTask& task, ChartTextRole role, const std::vector<std::string>& texts,
                double limit) {
    double widest = 0;
    for (const std::string& text : texts) {
        const double width = widthOf(task, role, text);
        widest = width <= limit ? std::max(widest, width) : widest;
    }
    return widest;
}

/// Whether the texts have to stand upright, to have `gap` between them in slots that wide, and their room.
std::pair<bool, double> standOf(const ChartLayoutTask& task, ChartTextRole role,
                                const std::vector<std::string>& texts, double gap, double slotWidth) {
    // Impossible hours from a file have a hundred digits: they turn no other value.
    const double widest = widestOf(task, role, texts, task.body.height * MostRoom);
    const bool upwards = widest + gap > slotWidth;
    return {upwards, upwards ? widest : task.lineHeight(role)};
}

/// A text as it stands with the middle of its lower edge at `foot`.
PlacedText standing(const ChartLayoutTask& task, ChartTextRole role, const std::string& text, bool upwards,
                    ChartPoint foot) {
    ChartSize size = task.measure(role, text);
    if (upwards) {
        size = {size.height * UprightLine, size.width};
    }
    return {role, text, {foot.x - size.width / 2, foot.y - size.height, size.width, size.height}, upwards};
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

bool leavesChart(const ChartLayout& layout, const ChartArea& text) {
    return text.x < 0 || text.right() > layout.size.width || text.y < layout.frame.y;
}

/// The values written so far, from left to right.
class WrittenValues {
public:
    /// Whether the area is free. The areas asked about come from left to right.
    bool leaveFree(const ChartArea& area) {
        m_widest = std::max(m_widest, area.width);
        const auto near = std::find_if(m_areas.begin(), m_areas.end(),
                                       [&](const ChartArea& each) { return each.x + m_widest > area.x; });
        m_areas.erase(m_areas.begin(), near); // they lie too far left for all that follow, too
        return std::none_of(m_areas.begin(), m_areas.end(),
                            [&area](const ChartArea& each) { return each.overlaps(area); });
    }
    void add(const ChartArea& area) { m_areas.push_back(area); }

private:
    std::vector<ChartArea> m_areas;
    double m_widest = 0;
};

} // namespace

BarTexts measureBarTexts(const ChartLayoutTask& task, double slotWidth) {
    BarTexts texts;
    for (std::size_t number = 0; number < task.grafico.numValori(); ++number) {
        const std::string value =
            slotWidth < NarrowestSlot ? std::string(Zero) : testoOre(task.grafico.valore(number));
        texts.labels.push_back(utf8FromCp1252(task.grafico.etichetta(number)));
        texts.values.push_back(value == Zero ? "" : value);
    }
    std::tie(texts.labelsUpwards, texts.below) =
        standOf(task, ChartTextRole::axisLabel, texts.labels, ChartGap, slotWidth);
    std::tie(texts.valuesUpwards, texts.above) =
        standOf(task, ChartTextRole::value, texts.values, ValueDistance, slotWidth);
    texts.above += 2 * ValueDistance;
    return texts;
}

void placeBarLabels(const ChartLayoutTask& task, const BarTexts& texts) {
    ChartLayout& layout = task.layout;
    const double size =
        texts.labelsUpwards
            ? task.lineHeight(ChartTextRole::axisLabel) * UprightLine
            : widestOf(task, ChartTextRole::axisLabel, texts.labels, layout.size.width) + ChartGap;
    const std::size_t step = labelStep(size, layout.bars.empty() ? 1 : layout.bars.front().slot.width);
    const double top = layout.plot.bottom() + ChartGap / 2;
    for (std::size_t number = 0; number < texts.labels.size(); number += step) {
        PlacedText label = standing(task, ChartTextRole::axisLabel, texts.labels[number], texts.labelsUpwards,
                                    {layout.bars[number].slot.centre().x, 0});
        label.area.y = top;
        label.area.height = std::min(label.area.height, texts.below);
        layout.texts.push_back(label);
    }
}

void placeBarValues(const ChartLayoutTask& task, const BarTexts& texts) {
    ChartLayout& layout = task.layout;
    WrittenValues written;
    for (std::size_t number = 0; number < texts.values.size(); ++number) {
        if (texts.values[number].empty()) {
            continue;
        }
        const ChartBar& bar = layout.bars[number];
        const PlacedText value =
            standing(task, ChartTextRole::value, texts.values[number], texts.valuesUpwards,
                     {bar.slot.centre().x, bar.area.y - ValueDistance});
        if (written.leaveFree(value.area) && !leavesChart(layout, value.area) &&
            !coversBar(layout, value.area)) {
            written.add(value.area);
            layout.texts.push_back(value);
        }
    }
}

} // namespace planner
