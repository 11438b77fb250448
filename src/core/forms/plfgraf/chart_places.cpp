// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/chart_layout_parts.h"

#include <algorithm>
#include <cmath>
#include <numbers>

// Which value stands where in a chart laid out.

namespace planner {

namespace {

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
        const ChartPoint point = onCircle(layout, degrees, layout.pieRadius);
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
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
