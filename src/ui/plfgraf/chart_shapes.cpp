// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfgraf/chart_shapes.h"

#include "ui/plfgraf/chart_painter.h"

#include <QPainter>

#include <algorithm>

namespace planner {

namespace {

/// What goes round a value; nothing where it has neither bar nor slice.
QPainterPath outline(const ChartLayout& layout, std::size_t number) {
    QPainterPath path;
    if (number < layout.bars.size()) {
        constexpr double lowest = 6; // of no hours: a mark that stands on the axis
        QRectF bar = rectOf(layout.bars[number].area);
        bar.setTop(std::min(bar.top(), bar.bottom() - lowest));
        path.addRect(bar);
    }
    for (const ChartSlice& slice : layout.slices) {
        if (slice.number == number) {
            return slicePath(layout, slice);
        }
    }
    return path;
}

} // namespace

QPainterPath slicePath(const ChartLayout& layout, const ChartSlice& slice, double longer) {
    const QPointF centre = pointOf(layout.pieCentre);
    const double radius = layout.pieRadius + longer;
    const QRectF circle(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    QPainterPath path;
    if (slice.span >= 360) {
        path.addEllipse(circle);
        return path;
    }
    path.moveTo(centre);
    path.arcTo(circle, 90 - slice.start, -slice.span); // the toolkit counts from three o'clock, to the left
    path.closeSubpath();
    return path;
}

void ChartPainter::pointOut(QPainter& painter, const ChartLayout& layout, std::size_t number) {
    constexpr double narrow = 16;
    const QPainterPath path = outline(layout, number);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!layout.bars.empty()) { // the hours along the axis stay whole
        painter.setClipRect(
            QRectF(QPointF(layout.plot.x + 1, 0), QPointF(layout.size.width, layout.size.height)));
    }
    // A dark line between light ones stands out from every colour.
    const int lightWidth = path.boundingRect().width() < narrow ? 4 : 6; // a narrow bar keeps its own colour
    painter.setBrush(Qt::NoBrush);
    for (const auto& [colour, width] : {std::pair{Qt::white, lightWidth}, std::pair{Qt::black, 2}}) {
        painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawPath(path);
    }
}

} // namespace planner
