// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/cell_painter.h"

#include "grids/layout.h"
#include "ui/kit/text.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace planner {

namespace {

constexpr int TextMargin = 4;

/// Above and below the bars of a row: no more than a low row can spare.
int barMargin(const QRect& cell) {
    return std::clamp(cell.height() / 16, 1, 3);
}

/// The share of the cell in which the appointment's bar stands: all its height where there is one lane. All
/// lanes are equally high. Where the row is too low for them they come to lie on each other, each in sight.
QRect laneOf(const QRect& cell, const FasciaImpegno& fascia) {
    constexpr int lowest = 2; // an edge and a line of colour
    const int margin = barMargin(cell);
    const QRect bars = cell.adjusted(0, margin, 0, -1 - margin);
    const int share = bars.height() / fascia.corsie;
    const int gap = fascia.corsie > 1 && share > lowest ? 1 : 0;
    const int height = std::max(share - gap, lowest);
    const int top = std::min(bars.height() * fascia.corsia / fascia.corsie, bars.height() - height);
    return {bars.left(), bars.top() + std::max(top, 0), bars.width(), height};
}

constexpr int SummaryMargin = 3; // beside a column's bar: leaves today's frame in sight

int summaryWidth(const QRect& rect) {
    constexpr int share = 7; // of the column's width
    return std::clamp(rect.width() / share, 2, 8);
}

/// Lines one pixel wide inside a rectangle's edges, sharp on every screen.
QRect leftLine(const QRect& rect) {
    return {rect.left(), rect.top(), 1, rect.height()};
}
QRect rightLine(const QRect& rect) {
    return {rect.right(), rect.top(), 1, rect.height()};
}
QRect topLine(const QRect& rect) {
    return {rect.left(), rect.top(), rect.width(), 1};
}
QRect bottomLine(const QRect& rect) {
    return {rect.left(), rect.bottom(), rect.width(), 1};
}

Colore lineBelow(const Griglia& griglia, int row) {
    return row < griglia.FixedRows() ? Colore::lineaForte : Colore::linea;
}

Colore lineBeside(const Griglia& griglia, int column) {
    return finisceGruppo(griglia, column) ? Colore::lineaForte : Colore::linea;
}

bool centred(const Cella& cella) {
    return stile(cella).allineamento == Allineamento::centro;
}

/// What a text's letters are chosen for: the days of one digit have those of two, which stand beside them.
QString measured(const QString& text) {
    return text.size() == 1 && text.front().isDigit() ? QStringLiteral("00") : text;
}

} // namespace

CellPainter::CellPainter(double fontFactor) {
    setFactors(fontFactor, 1, 1);
}

void CellPainter::setFactors(double fontFactor, float header, float rows) {
    constexpr float largestPicture = 64; // pixels, as designed
    for (std::size_t i = 0; i < Caratteri.size(); ++i) {
        const auto sized = [&](float factor) {
            return FittingFont(qtFont(static_cast<Carattere>(i), fontFactor * factor));
        };
        m_headerFonts[i] = sized(header);
        m_rowFonts[i] = sized(std::max(rows, 1.0F));
        m_lowRowFonts[i] = sized(rows);
    }
    m_highEnough =
        QFontMetrics(m_rowFonts.at(static_cast<std::size_t>(Carattere::grassetto)).font()).height();
    m_largestPicture = qRound(largestPicture * std::max(rows, 1.0F));
}

int CellPainter::lowestRow() const {
    constexpr int line = 1;
    const QFontMetricsF metrics(m_lowRowFonts.at(static_cast<std::size_t>(Carattere::normale)).font());
    return static_cast<int>(std::ceil(metrics.capHeight() + metrics.descent())) + line;
}

int CellPainter::lowestHeader() const {
    const QFontMetricsF metrics(m_headerFonts.at(static_cast<std::size_t>(Carattere::normale)).font());
    return static_cast<int>(std::ceil(metrics.ascent() + metrics.descent()));
}

int CellPainter::pictureSide(const QRect& rect) const {
    return std::min({rect.width() - 3, rect.height() - 2, m_largestPicture});
}

const FittingFont& CellPainter::font(const Griglia& griglia, Casella casella, int height) const {
    const Fonts& fonts = casella.riga < griglia.FixedRows() ? m_headerFonts
                         : height < m_highEnough            ? m_lowRowFonts
                                                            : m_rowFonts;
    return fonts.at(static_cast<std::size_t>(griglia.aspetto(casella).carattere));
}

void CellPainter::paint(QPainter& painter, const QRect& rect, const Griglia& griglia, Casella casella,
                        int keptFree) {
    painter.fillRect(rect, qtColor(griglia.aspetto(casella).fondo));
    painter.fillRect(bottomLine(rect), qtColor(lineBelow(griglia, casella.riga)));
    painter.fillRect(rightLine(rect), qtColor(lineBeside(griglia, casella.colonna)));
    paintContents(painter, rect, griglia, casella, keptFree);
}

void CellPainter::paintBlock(QPainter& painter, const CellBlock& block, const Griglia& griglia, bool focus) {
    for (int row = 0; row < block.rows(); ++row) {
        paintGrounds(painter, block, row, griglia);
    }
    paintLines(painter, block, griglia);
    for (int row = 0; row < block.rows(); ++row) {
        for (int column = 0; column < block.columns(); ++column) {
            paintContents(painter, block.place(row, column), griglia, block.casella(row, column));
        }
    }
    const int row = griglia.Row() - block.first.riga;
    const int column = griglia.Col() - block.first.colonna;
    if (row >= 0 && row < block.rows() && column >= 0 && column < block.columns()) {
        const Colore colore = cornice(griglia.aspetto(griglia.corrente()).fondo);
        paintFrame(painter, block.place(row, column).adjusted(0, 0, -1, -1), colore, focus ? 2 : 1);
    }
}

void CellPainter::paintLines(QPainter& painter, const CellBlock& block, const Griglia& griglia) {
    const QRect whole = block.place(0, 0).united(block.place(block.rows() - 1, block.columns() - 1));
    for (int row = 0; row < block.rows(); ++row) {
        const QRect place = block.place(row, 0);
        painter.fillRect(QRect(whole.left(), place.bottom(), whole.width(), 1),
                         qtColor(lineBelow(griglia, block.first.riga + row)));
    }
    for (int column = 0; column < block.columns(); ++column) {
        const QRect place = block.place(0, column);
        painter.fillRect(QRect(place.right(), whole.top(), 1, whole.height()),
                         qtColor(lineBeside(griglia, block.first.colonna + column)));
    }
}

void CellPainter::paintGrounds(QPainter& painter, const CellBlock& block, int row, const Griglia& griglia) {
    const auto ground = [&](int column) { return griglia.aspetto(block.casella(row, column)).fondo; };
    int first = 0;
    Colore shown = ground(0);
    for (int column = 1; column <= block.columns(); ++column) {
        const bool end = column == block.columns();
        const Colore next = end ? shown : ground(column);
        if (end || next != shown) {
            painter.fillRect(block.place(row, first).united(block.place(row, column - 1)), qtColor(shown));
            first = column;
            shown = next;
        }
    }
}

void CellPainter::paintContents(QPainter& painter, const QRect& rect, const Griglia& griglia, Casella casella,
                                int keptFree) {
    const Cella& cella = griglia.cella(casella);
    for (const FasciaImpegno& fascia : griglia.fasce(casella.riga)) {
        if (fascia.copre(casella.colonna)) {
            paintBar(painter, laneOf(rect, fascia), fascia, casella.colonna, griglia.aspetto(casella).barra);
        }
    }
    if (cella.immagine != 0 && !cella.impegno) { // a bar has its own
        paintPicture(painter, rect, cella.immagine, /*besideText=*/cella.testo != 0);
    }
    if (cella.testo != 0) {
        paintText(painter, textPlace(rect, griglia, casella, keptFree), griglia, casella);
    }
    paintMarks(painter, rect, griglia, casella);
}

void CellPainter::paintPicture(QPainter& painter, const QRect& rect, int picture, bool besideText) {
    const int side = besideText ? sideBesideText(rect) : pictureSide(rect);
    const QPixmap& pixmap = m_pictures.picture(picture, side, painter.device()->devicePixelRatioF());
    const int left =
        besideText ? rect.right() - side - TextMargin : rect.left() + (rect.width() - 1 - side) / 2;
    painter.drawPixmap(QPoint(left, rect.top() + (rect.height() - 1 - side) / 2), pixmap);
}

int CellPainter::sideBesideText(const QRect& rect) const {
    constexpr int lines = 2;
    const QFont& font = m_rowFonts.at(static_cast<std::size_t>(Carattere::normale)).font();
    return std::min(pictureSide(rect), lines * QFontMetrics(font).height());
}

QRect CellPainter::textPlace(const QRect& rect, const Cella& cella, int keptFree) const {
    const int pictureWidth = cella.immagine != 0 ? sideBesideText(rect) + TextMargin : 0;
    constexpr int narrowPart = 20; // of a narrow column: as little as this fraction
    constexpr int wide = 45;       // of a wide column: a margin that grows with the screen
    const int margin = centred(cella) ? std::min(TextMargin, rect.width() / narrowPart)
                                      : std::max(TextMargin, rect.width() / wide);
    const int right = std::max(pictureWidth, centred(cella) ? margin : 0);
    return rect.adjusted(std::max(keptFree, margin), 0, -1 - std::max(keptFree, right), -1);
}

QRect CellPainter::textPlace(const QRect& rect, const Griglia& griglia, Casella casella, int keptFree) const {
    QRect place = textPlace(rect, griglia.cella(casella), keptFree);
    if (casella.riga < griglia.FixedRows() && griglia.riepilogo(casella.colonna)) {
        const int taken = SummaryMargin + summaryWidth(rect) + 1;
        const int text =
            font(griglia, casella, rect.height()).width(measured(fromCp1252(griglia.TextMatrix(casella))));
        place.setRight(rect.right() - (text > rect.width() - 2 * taken ? taken : 1));
    }
    return place;
}

FittedText CellPainter::fittedText(const QRect& place, const Griglia& griglia, Casella casella) const {
    const QString text = fromCp1252(griglia.TextMatrix(casella));
    FittedText fitted = font(griglia, casella, place.height()).fit(measured(text), place.width());
    return text == measured(text) ? fitted : FittedText{fitted.letters, text, fitted.cut};
}

bool CellPainter::cut(const QRect& rect, const Griglia& griglia, Casella casella, int keptFree) const {
    const QRect place = textPlace(rect, griglia, casella, keptFree);
    return fittedText(place, griglia, casella).cut;
}

void CellPainter::paintText(QPainter& painter, const QRect& place, const Griglia& griglia, Casella casella) {
    const Cella& cella = griglia.cella(casella);
    const FittedText fitted = fittedText(place, griglia, casella);
    painter.setPen(qtColor(griglia.aspetto(casella).colore));
    fitted.letters.write(painter, place, fitted.shown, centred(cella));
}

void CellPainter::paintBar(QPainter& painter, const QRect& bar, const FasciaImpegno& fascia, int col,
                           Colore colore) {
    constexpr int lowestWithTwoEdges = 4;
    const QColor edge = qtColor(Colore::bordoFascia);
    painter.fillRect(bar, qtColor(colore));
    painter.fillRect(topLine(bar), edge);
    if (bar.height() >= lowestWithTwoEdges) {
        painter.fillRect(bottomLine(bar), edge);
    }
    if (col == fascia.prima) {
        painter.fillRect(leftLine(bar), edge);
        paintBarPicture(painter, bar, fascia.immagine);
    }
    if (col == fascia.ultima) {
        painter.fillRect(rightLine(bar), edge);
    }
}

void CellPainter::paintBarPicture(QPainter& painter, const QRect& bar, int picture) {
    constexpr int smallest = 3;
    constexpr int legible = 12;
    const QRect place = bar.adjusted(2, 1, -1, -1);
    const int largest = std::max(bar.width() / 2 - 1, legible); // about a corner's size in a high bar
    const QSize room(place.width(), std::min(place.height(), largest));
    const QPixmap& line = m_pictures.line(picture, room, painter.device()->devicePixelRatioF());
    const int height = qRound(line.deviceIndependentSize().height());
    if (bar.height() >= bar.width() || height <= pictureSide(bar) / 2) { // corners as large as in a free row
        paintPicture(painter, bar, picture, /*besideText=*/false);
    } else if (height >= smallest) {
        painter.drawPixmap(QPoint(place.left(), place.top() + (place.height() - height) / 2), line);
    }
}

void CellPainter::paintFrame(QPainter& painter, const QRect& rect, Colore colore, int thickness) {
    const QColor colour = qtColor(colore);
    painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), thickness), colour);
    painter.fillRect(QRect(rect.left(), rect.bottom() + 1 - thickness, rect.width(), thickness), colour);
    painter.fillRect(QRect(rect.left(), rect.top(), thickness, rect.height()), colour);
    painter.fillRect(QRect(rect.right() + 1 - thickness, rect.top(), thickness, rect.height()), colour);
}

void CellPainter::paintSummary(QPainter& painter, const QRect& rect, const Griglia& griglia, int col) {
    const auto value = griglia.riepilogo(col);
    if (!value || griglia.riepilogoMassimo() <= 0) {
        return;
    }
    const int width = summaryWidth(rect);
    const QRect most(rect.right() + 1 - SummaryMargin - width, rect.top() + SummaryMargin, width,
                     rect.height() - 2 * SummaryMargin);
    QColor pale = qtColor(Colore::riepilogo); // where nothing tells it from a point, the bar shows its room
    pale.setAlphaF(0.15F);
    painter.fillRect(most, pale);
    if (*value > 0) {
        const int share = std::min(*value, griglia.riepilogoMassimo());
        const int height = std::max(most.height() * share / griglia.riepilogoMassimo(), 1);
        painter.fillRect(most.adjusted(0, most.height() - height, 0, 0), qtColor(Colore::riepilogo));
    }
}

void CellPainter::paintMarks(QPainter& painter, const QRect& rect, const Griglia& griglia, Casella casella) {
    const auto ground = [&] { return griglia.aspetto(casella).fondo; };
    const QRect inside = rect.adjusted(0, 0, -1, -1); // the lines between the cells stay in sight
    if (griglia.cella(casella).oggi) {
        paintFrame(painter, inside, corniceOggi(ground()), 2);
    }
    if (casella.riga == griglia.RigaEvidenziata()) {
        constexpr int highEnough = 24; // pixels, that two lines of two leave something of
        const int thickness = rect.height() < highEnough ? 1 : 2;
        const QColor colour = qtColor(cornice(ground()));
        painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), thickness), colour);
        painter.fillRect(QRect(rect.left(), rect.bottom() + 1 - thickness, rect.width(), thickness), colour);
    }
    if (casella.riga == griglia.FixedRows() - 1 && griglia.inEvidenza(casella)) {
        painter.fillRect(QRect(rect.left(), rect.bottom() - 1, rect.width(), 2), qtColor(cornice(ground())));
    }
    if (griglia.scelta(casella)) {
        paintFrame(painter, inside, cornice(ground()), 1);
    }
}

} // namespace planner
