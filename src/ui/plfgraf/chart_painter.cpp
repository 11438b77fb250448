// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfgraf/chart_painter.h"

#include "ui/kit/appearance.h"
#include "ui/kit/text.h"
#include "ui/plfgraf/chart_shapes.h"

#include <QLineF>
#include <QList>
#include <QPaintEngine>
#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace planner {

namespace {

constexpr double PixelsPerPoint = 96.0 / 72.0;
constexpr int TitlePoints = 14;
constexpr int HeadingPoints = 11;
constexpr double ShadowOffset = 20.0 / 15; // twenty twips
constexpr double PlotShadowOffset = 3;
const QColor ShadowColour(128, 128, 128);

QColor colourOf(Rgb value) {
    return {value.red, value.green, value.blue};
}

Letters lettersFor(const DescrizioneCarattere& described, double factor) {
    QFont font = qtFont(described, factor);
    font.setPixelSize(std::max(qRound(font.pointSizeF() * PixelsPerPoint), 1));
    return Letters(font);
}

/// Whether a line beside the slice would leave little of its arc.
bool isNarrow(const ChartLayout& layout, const ChartSlice& slice) {
    constexpr double narrowest = 6; // pixels
    return layout.pieRadius * qDegreesToRadians(slice.span) < narrowest;
}

/// The text as wide as its area allows.
QString fitted(const QString& text, const Letters& letters, double width) {
    constexpr double tolerance = 1; // the area was measured from this very text
    return letters.advance(text) <= width + tolerance
               ? text
               : letters.metrics().elidedText(text, Qt::ElideRight, width);
}

} // namespace

ChartPainter::ChartPainter(const Grafico& grafico, double fontFactor)
    : m_grafico(grafico),
      m_letters{lettersFor({carattere(Carattere::grassetto).famiglia, TitlePoints, true}, fontFactor),
                lettersFor(grafico.fontTitoliAssi, fontFactor),
                lettersFor(carattere(Carattere::grassetto), fontFactor),
                lettersFor(carattere(Carattere::grassetto), fontFactor),
                lettersFor(carattere(Carattere::normale), fontFactor),
                lettersFor({carattere(Carattere::grassetto).famiglia, HeadingPoints, true}, fontFactor)} {}

MeasureText ChartPainter::measure() const {
    return [this](ChartTextRole role, const std::string& text) {
        return ChartSize{letters(role).advance(fromUtf8(text)), letters(role).metrics().height()};
    };
}

void ChartPainter::paint(QPainter& painter, const ChartLayout& layout) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(0, 0, layout.size.width, layout.size.height), Qt::white);
    paintTitleFrame(painter, layout);
    paintPlotFrame(painter, layout);
    if (m_grafico.tipo == TipoGrafico::Torta) {
        paintSlices(painter, layout);
        paintLabelBoxes(painter, layout);
    } else {
        paintLines(painter, layout);
        paintBars(painter, layout);
        paintAxes(painter, layout);
    }
    paintLegend(painter, layout);
    paintTexts(painter, layout);
}

void ChartPainter::paintTitleFrame(QPainter& painter, const ChartLayout& layout) const {
    if (!m_grafico.titoloIncorniciato || layout.title.empty()) {
        return;
    }
    const QRectF box = rectOf(layout.title);
    painter.fillRect(box.translated(ShadowOffset, ShadowOffset), ShadowColour);
    painter.fillRect(box, Qt::white);
    painter.setPen(QPen(Qt::yellow, 1));
    painter.setBrush(Qt::NoBrush);
    constexpr double between = 3;
    painter.drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5));
    painter.drawRect(box.adjusted(between, between, -between, -between));
}

void ChartPainter::paintPlotFrame(QPainter& painter, const ChartLayout& layout) const {
    if (!m_grafico.areaIncorniciata) {
        return;
    }
    constexpr double outer = 3;
    constexpr double inner = 5;
    const QRectF box = rectOf(layout.frame);
    painter.fillRect(box.translated(PlotShadowOffset, PlotShadowOffset), ShadowColour);
    painter.fillRect(box, Qt::white);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, outer, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(box.adjusted(outer / 2, outer / 2, -outer / 2, -outer / 2));
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(box.adjusted(inner, inner, -inner, -inner));
}

void ChartPainter::paintLines(QPainter& painter, const ChartLayout& layout) const {
    const auto drawAll = [&](const std::vector<double>& heights, const Penna& pen) {
        painter.setPen(QPen(colourOf(pen.colore), pen.Width * PixelsPerPoint, Qt::SolidLine, Qt::FlatCap));
        for (const double y : heights) {
            painter.drawLine(QPointF(layout.plot.x, y), QPointF(layout.plot.right(), y));
        }
    };
    drawAll(layout.minorLines, m_grafico.asseY.PennaMinor);
    drawAll(layout.majorLines, m_grafico.asseY.PennaMajor);
}

void ChartPainter::paintBars(QPainter& painter, const ChartLayout& layout) const {
    painter.setPen(Qt::NoPen);
    for (std::size_t number = 0; number < layout.bars.size(); ++number) {
        painter.setBrush(colourOf(m_grafico.serie[m_grafico.serieDi(number)].colore));
        painter.drawRect(rectOf(layout.bars[number].area));
    }
}

void ChartPainter::paintAxes(QPainter& painter, const ChartLayout& layout) const {
    const QRectF plot = rectOf(layout.plot);
    painter.setPen(QPen(Qt::black, 1));
    painter.drawLine(plot.topLeft(), plot.bottomLeft());
    painter.drawLine(plot.bottomLeft(), plot.bottomRight());
}

void ChartPainter::paintSlices(QPainter& painter, const ChartLayout& layout) const {
    const bool anyNarrow = std::any_of(layout.slices.begin(), layout.slices.end(),
                                       [&](const ChartSlice& slice) { return isNarrow(layout, slice); });
    if (anyNarrow && painter.paintEngine()->type() == QPaintEngine::Raster) {
        fillSlices(painter, layout);
        paintSliceEdges(painter, layout);
        return;
    }
    for (const ChartSlice& slice : layout.slices) {
        painter.setPen(isNarrow(layout, slice) ? QPen(Qt::NoPen) : QPen(Qt::white, 1));
        painter.setBrush(colourOf(slice.colour));
        painter.drawPath(slicePath(layout, slice));
    }
}

/// A white line at either side of each slice that is wide enough, from where it leaves something of the
/// slice.
void ChartPainter::paintSliceEdges(QPainter& painter, const ChartLayout& layout) {
    constexpr double leastArc = 2; // pixels
    QList<QLineF> edges;
    const ChartSlice* before = &layout.slices.back();
    for (const ChartSlice& slice : layout.slices) {
        if (!isNarrow(layout, slice) || !isNarrow(layout, *before)) {
            const double widest = qDegreesToRadians(std::max(slice.span, before->span));
            QLineF edge = QLineF::fromPolar(layout.pieRadius, 90 - slice.start); // from three o'clock
            edge.setP1(edge.pointAt(leastArc / widest / layout.pieRadius));
            edges.append(edge.translated(pointOf(layout.pieCentre)));
        }
        before = &slice;
    }
    painter.setPen(QPen(Qt::white, 1));
    painter.drawLines(edges);
}

/// Without smoothing between neighbours, but for the rim: to smooth hundreds of wedges takes longer than a
/// frame, and lets the ground through between them.
void ChartPainter::fillSlices(QPainter& painter, const ChartLayout& layout) {
    constexpr double beyondRim = 2;
    const double scale = painter.deviceTransform().m11();
    const QPointF corner = pointOf(layout.pieCentre) - QPointF(1, 1) * (layout.pieRadius + beyondRim);
    const int side = qCeil(2 * (layout.pieRadius + beyondRim) * scale);
    QImage wedges(side, side, QImage::Format_ARGB32_Premultiplied);
    wedges.fill(Qt::transparent);
    QPainter onWedges(&wedges);
    onWedges.scale(scale, scale);
    onWedges.translate(-corner);
    onWedges.setPen(Qt::NoPen);
    for (const ChartSlice& slice : layout.slices) {
        onWedges.setBrush(colourOf(slice.colour));
        onWedges.drawPath(slicePath(layout, slice, beyondRim));
    }
    QBrush brush(wedges);
    brush.setTransform(QTransform::fromTranslate(corner.x(), corner.y()).scale(1 / scale, 1 / scale));
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawEllipse(pointOf(layout.pieCentre), layout.pieRadius, layout.pieRadius);
}

void ChartPainter::paintLabelBoxes(QPainter& painter, const ChartLayout& layout) const {
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(Qt::white);
    for (const ChartSlice& slice : layout.slices) {
        if (slice.label) {
            const std::array line{pointOf(slice.labelLine[0]), pointOf(slice.labelLine[1]),
                                  pointOf(slice.labelLine[2])};
            painter.drawPolyline(line.data(), static_cast<int>(line.size()));
        }
    }
    painter.setRenderHint(QPainter::Antialiasing, false); // upright lines are sharp without
    for (const ChartSlice& slice : layout.slices) {
        if (slice.label) {
            painter.drawRect(rectOf(layout.texts[*slice.label].area));
        }
    }
    painter.setRenderHint(QPainter::Antialiasing);
}

void ChartPainter::paintLegend(QPainter& painter, const ChartLayout& layout) const {
    painter.setPen(QPen(Qt::black, 1));
    for (const ChartLegendEntry& entry : layout.legend) {
        painter.setBrush(colourOf(m_grafico.serie[entry.series].colore));
        painter.drawRect(rectOf(entry.swatch));
    }
}

void ChartPainter::paintTexts(QPainter& painter, const ChartLayout& layout) const {
    const bool bars = m_grafico.tipo == TipoGrafico::Istogramma;
    for (const PlacedText& text : layout.texts) {
        // The lines of the grid pass behind the values.
        paintText(painter, text, /*onPaper=*/bars && text.role == ChartTextRole::value);
    }
}

void ChartPainter::paintText(QPainter& painter, const PlacedText& placed, bool onPaper) const {
    const QRectF area = rectOf(placed.area);
    painter.save();
    painter.setFont(letters(placed.role).font());
    QRectF box = area;
    if (placed.upwards) {
        painter.translate(area.bottomLeft());
        painter.rotate(-90);
        box = QRectF(0, 0, area.height(), area.width());
    }
    const QString text = fitted(fromUtf8(placed.text), letters(placed.role), box.width());
    if (onPaper) {
        painter.fillRect(box, Qt::white);
    }
    painter.setPen(Qt::black);
    painter.drawText(box, Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine, text);
    painter.restore();
}

} // namespace planner
