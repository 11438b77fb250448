// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"
#include "forms/plfgraf/chart_layout_parts.h"
#include "forms/plfgraf/chart_texts.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace planner {

namespace {

constexpr double LabelPadding = 4;
constexpr double BendDistance = 10;  // of the label line's bend from the pie
constexpr double LabelDistance = 20; // of the labels from the pie
constexpr double SmallestRadius = 10;

/// A label that looks for its place beside the pie.
struct SideLabel {
    std::size_t slice; // index into the layout's slices
    std::string text;
    ChartSize size;
    double middle = 0; // height of its middle
};

/// The labels on one side of the pie, from top to bottom.
struct Side {
    bool right;
    std::vector<std::size_t> slices; // that have room for a label
    std::vector<SideLabel> labels;
};
using Sides = std::array<Side, 2>;

void placeSlices(const ChartLayoutTask& task) {
    const double total = totaleTorta(task.grafico);
    double sum = 0;
    for (std::size_t number = 0; number < task.grafico.numValori(); ++number) {
        const double value = task.grafico.valore(number);
        if (value > 0) {
            const double start = sum / total * FullTurn;
            sum += value;
            task.layout.slices.push_back({number, start, sum / total * FullTurn - start, {}, {}, {}});
        }
    }
}

/// `share` 0 is the colour itself, 1 is white.
Rgb lightened(Rgb colour, double share) {
    const auto channel = [share](std::uint8_t value) {
        return static_cast<std::uint8_t>(std::lround(value + (255 - value) * share));
    };
    return {channel(colour.red), channel(colour.green), channel(colour.blue)};
}

/// How much lighter slice `place` of `count` is than its series: no two neighbours are alike, the last and
/// the first included.
double sliceShade(std::size_t place, std::size_t count) {
    constexpr std::array<double, 5> shades{0, 0.45, 0.15, 0.6, 0.3};
    const std::size_t shade = place % shades.size();
    const bool meetsFirst = place > 0 && place + 1 == count && shade == 0;
    return shades.at(meetsFirst ? 2 : shade);
}

void colourSlices(const ChartLayoutTask& task) {
    auto& slices = task.layout.slices;
    for (std::size_t place = 0; place < slices.size(); ++place) {
        const Rgb colour = task.grafico.serie[task.grafico.serieDi(slices[place].number)].colore;
        const bool oneSeries = task.grafico.serie.size() == 1;
        slices[place].colour = oneSeries ? lightened(colour, sliceShade(place, slices.size())) : colour;
    }
}

double middleOf(const ChartSlice& slice) {
    return slice.start + slice.span / 2;
}

/// The side's slices; of too many only the largest, so that their labels have room one below the other.
std::vector<std::size_t> labelledSlices(const ChartLayoutTask& task, bool right) {
    const std::vector<ChartSlice>& slices = task.layout.slices;
    std::vector<std::size_t> side;
    for (std::size_t i = 0; i < slices.size(); ++i) {
        if ((middleOf(slices[i]) < FullTurn / 2) == right) {
            side.push_back(i);
        }
    }
    const double line = task.lineHeight(ChartTextRole::value) + LabelPadding;
    const auto room = static_cast<std::size_t>(std::max(task.body.height / line, 0.0));
    if (side.size() > room) {
        std::stable_sort(side.begin(), side.end(),
                         [&](std::size_t a, std::size_t b) { return slices[a].span > slices[b].span; });
        side.resize(room);
    }
    // On the right the slices descend, on the left they climb.
    std::sort(side.begin(), side.end(),
              [right](std::size_t a, std::size_t b) { return right ? a < b : a > b; });
    return side;
}

/// `total` is what the slice's share is told of; without one it is not told.
SideLabel makeLabel(const ChartLayoutTask& task, std::size_t slice, std::optional<double> total) {
    const std::size_t number = task.layout.slices[slice].number;
    const double value = task.grafico.valore(number);
    const std::string text = utf8FromCp1252(task.grafico.etichetta(number)) + "  " + testoOre(value) +
                             (total ? "  " + testoQuota(value, *total) : "");
    const ChartSize size = task.measure(ChartTextRole::value, text);
    return {slice, text, {size.width + 2 * LabelPadding, size.height + LabelPadding}};
}

void makeLabels(const ChartLayoutTask& task, Sides& sides, std::optional<double> total) {
    for (Side& side : sides) {
        side.labels.clear();
        for (const std::size_t slice : side.slices) {
            side.labels.push_back(makeLabel(task, slice, total));
        }
    }
}

/// The largest width that leaves room for the labels on both sides; may be negative.
double widthBetween(const ChartLayoutTask& task, const Sides& sides) {
    double widest = 0;
    for (const Side& side : sides) {
        for (const SideLabel& label : side.labels) {
            widest = std::max(widest, label.size.width);
        }
    }
    return task.body.width - 2 * (widest + LabelDistance);
}

/// With each slice's share, unless that leaves no room for the circle.
Sides makeFittingSides(const ChartLayoutTask& task) {
    Sides sides{Side{true, labelledSlices(task, true), {}}, Side{false, labelledSlices(task, false), {}}};
    makeLabels(task, sides, totaleTorta(task.grafico));
    if (widthBetween(task, sides) < 2 * SmallestRadius) {
        makeLabels(task, sides, std::nullopt);
    }
    return sides;
}

void placeCircle(const ChartLayoutTask& task, const Sides& sides) {
    const double above = BendDistance + task.lineHeight(ChartTextRole::value);
    const double diameter = std::min(widthBetween(task, sides), task.body.height - 2 * above);
    task.layout.plot = task.body;
    task.layout.pieCentre = task.body.centre();
    task.layout.pieRadius = std::max(diameter / 2, SmallestRadius);
}

/// Moves labels, as little as is simple, so that none covers another and all stay within the body.
void spread(std::vector<SideLabel>& labels, const ChartArea& body) {
    double lowest = body.y;
    for (SideLabel& label : labels) {
        label.middle = std::max(label.middle, lowest + label.size.height / 2);
        lowest = label.middle + label.size.height / 2;
    }
    double highest = body.bottom();
    for (auto label = labels.rbegin(); label != labels.rend(); ++label) {
        label->middle = std::min(label->middle, highest - label->size.height / 2);
        highest = label->middle - label->size.height / 2;
    }
}

/// How far from the pie's middle a label begins that follows the circle.
double distanceBeside(const ChartLayout& layout, const SideLabel& label) {
    const double radius = layout.pieRadius + LabelDistance;
    const double height = std::max(std::abs(label.middle - layout.pieCentre.y) - label.size.height / 2, 0.0);
    return std::max(height < radius ? std::sqrt(radius * radius - height * height) : 0, ChartGap / 2);
}

void addSideLabel(ChartLayout& layout, const SideLabel& label, bool right) {
    const double distance = distanceBeside(layout, label);
    const double x = right ? layout.pieCentre.x + distance : layout.pieCentre.x - distance - label.size.width;
    ChartSlice& slice = layout.slices[label.slice];
    slice.label = layout.texts.size();
    slice.labelLine = {onCircle(layout, middleOf(slice), layout.pieRadius),
                       onCircle(layout, middleOf(slice), layout.pieRadius + BendDistance),
                       ChartPoint{right ? x : x + label.size.width, label.middle}};
    layout.texts.push_back({ChartTextRole::value,
                            label.text,
                            {x, label.middle - label.size.height / 2, label.size.width, label.size.height}});
}

void placeSide(const ChartLayoutTask& task, Side& side) {
    ChartLayout& layout = task.layout;
    for (SideLabel& label : side.labels) {
        const double middle = middleOf(layout.slices[label.slice]);
        label.middle = onCircle(layout, middle, layout.pieRadius + BendDistance).y;
    }
    spread(side.labels, task.body);
    for (const SideLabel& label : side.labels) {
        addSideLabel(layout, label, side.right);
    }
}

} // namespace

ChartPoint onCircle(const ChartLayout& layout, double degrees, double radius) {
    const double angle = degrees * std::numbers::pi / (FullTurn / 2);
    return {layout.pieCentre.x + radius * std::sin(angle), layout.pieCentre.y - radius * std::cos(angle)};
}

void layoutPie(const ChartLayoutTask& task) {
    placeSlices(task);
    if (task.layout.slices.empty()) {
        task.addText(ChartTextRole::axisTitle, "Nessuna ora da mostrare", task.body.centre());
        return;
    }
    colourSlices(task);
    Sides sides = makeFittingSides(task);
    placeCircle(task, sides);
    for (Side& side : sides) {
        placeSide(task, side);
    }
}

} // namespace planner
