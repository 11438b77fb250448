// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"
#include "forms/plfgraf/chart_layout_parts.h"
#include "forms/plfgraf/chart_texts.h"

#include <algorithm>
#include <cmath>
#include <numbers>

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
    double share;  // of the whole
    double middle; // height of its middle
};

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

std::vector<SideLabel> makeLabels(const ChartLayoutTask& task, bool shares) {
    std::vector<SideLabel> labels;
    const ChartLayout& layout = task.layout;
    const double total = totaleTorta(task.grafico);
    for (std::size_t i = 0; i < layout.slices.size(); ++i) {
        const std::size_t number = layout.slices[i].number;
        const double value = task.grafico.valore(number);
        const std::string text = utf8FromCp1252(task.grafico.etichetta(number)) + "  " + testoOre(value) +
                                 (shares ? "  " + testoQuota(value, total) : "");
        ChartSize size = task.measure(ChartTextRole::value, text);
        size = {size.width + 2 * LabelPadding, size.height + LabelPadding};
        labels.push_back({i, text, size, layout.slices[i].span, 0});
    }
    return labels;
}

/// The largest width that leaves room for the labels on both sides; may be negative.
double widthBetween(const ChartLayoutTask& task, const std::vector<SideLabel>& labels) {
    double widest = 0;
    for (const SideLabel& label : labels) {
        widest = std::max(widest, label.size.width);
    }
    return task.body.width - 2 * (widest + LabelDistance);
}

/// With each slice's share, unless that leaves no room for the circle.
std::vector<SideLabel> makeFittingLabels(const ChartLayoutTask& task) {
    std::vector<SideLabel> labels = makeLabels(task, /*shares=*/true);
    return widthBetween(task, labels) >= 2 * SmallestRadius ? labels : makeLabels(task, /*shares=*/false);
}

void placeCircle(const ChartLayoutTask& task, const std::vector<SideLabel>& labels) {
    const double above = BendDistance + task.lineHeight(ChartTextRole::value);
    const double diameter = std::min(widthBetween(task, labels), task.body.height - 2 * above);
    task.layout.plot = task.body;
    task.layout.pieCentre = task.body.centre();
    task.layout.pieRadius = std::max(diameter / 2, SmallestRadius);
}

/// Leaves out the labels of the smallest slices, so that the others have room one below the other.
void keepLargest(std::vector<SideLabel>& side, double height) {
    const double line = side.empty() ? 1 : side.front().size.height;
    const auto room = static_cast<std::size_t>(std::max(height / line, 0.0));
    if (side.size() > room) {
        std::stable_sort(side.begin(), side.end(),
                         [](const SideLabel& a, const SideLabel& b) { return a.share > b.share; });
        side.resize(room);
    }
}

/// From top to bottom: on the right the slices descend, on the left they climb.
void orderSide(std::vector<SideLabel>& side, bool right) {
    std::sort(side.begin(), side.end(), [right](const SideLabel& a, const SideLabel& b) {
        return right ? a.slice < b.slice : a.slice > b.slice;
    });
}

/// Moves labels, as little as is simple, so that none covers another and all stay within the body.
void spread(std::vector<SideLabel>& side, const ChartArea& body) {
    double lowest = body.y;
    for (SideLabel& label : side) {
        label.middle = std::max(label.middle, lowest + label.size.height / 2);
        lowest = label.middle + label.size.height / 2;
    }
    double highest = body.bottom();
    for (auto label = side.rbegin(); label != side.rend(); ++label) {
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

void placeSide(const ChartLayoutTask& task, const std::vector<SideLabel>& labels, bool right) {
    ChartLayout& layout = task.layout;
    std::vector<SideLabel> side;
    for (SideLabel label : labels) {
        const ChartSlice& slice = layout.slices[label.slice];
        if ((middleOf(slice) < FullTurn / 2) == right) {
            label.middle = onCircle(layout, middleOf(slice), layout.pieRadius + BendDistance).y;
            side.push_back(label);
        }
    }
    keepLargest(side, task.body.height);
    orderSide(side, right);
    spread(side, task.body);
    for (const SideLabel& label : side) {
        addSideLabel(layout, label, right);
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
    const std::vector<SideLabel> labels = makeFittingLabels(task);
    placeCircle(task, labels);
    placeSide(task, labels, /*right=*/true);
    placeSide(task, labels, /*right=*/false);
}

} // namespace planner
