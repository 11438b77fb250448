// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/chart_layout.h"

#include <QPainterPath>

namespace planner {

inline QRectF rectOf(const ChartArea& area) {
    return {area.x, area.y, area.width, area.height};
}

inline QPointF pointOf(ChartPoint point) {
    return {point.x, point.y};
}

/// The slice of a pie whose radius is that much longer than laid out.
QPainterPath slicePath(const ChartLayout& layout, const ChartSlice& slice, double longer = 0);

} // namespace planner
