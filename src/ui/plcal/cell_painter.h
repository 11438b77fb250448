// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/griglia.h"
#include "ui/kit/appearance.h"
#include "ui/kit/fitting_font.h"
#include "ui/kit/pictures.h"

#include <QRect>

#include <array>
#include <vector>

class QPainter;

namespace planner {

/// Some of a grid's cells, beside each other, and where they stand; at least one.
struct CellBlock {
    Casella first;
    std::vector<int> tops;  // pixels: where each row begins, and where the last one ends
    std::vector<int> lefts; // the same of the columns

    int rows() const { return static_cast<int>(tops.size()) - 1; }
    int columns() const { return static_cast<int>(lefts.size()) - 1; }
    /// Both counted from 0, the first cell's.
    Casella casella(int row, int column) const { return {first.riga + row, first.colonna + column}; }
    QRect place(int row, int column) const {
        const auto r = static_cast<std::size_t>(row);
        const auto c = static_cast<std::size_t>(column);
        return {lefts[c], tops[r], lefts[c + 1] - lefts[c], tops[r + 1] - tops[r]};
    }
};

/// Paints the cells of a grid: background, picture, text, lines. Grid, headers and corner share it, so
/// that every cell looks the same wherever it stands.
class CellPainter {
public:
    /// Fonts follow the screen, as far as they stay legible.
    explicit CellPainter(double fontFactor);

    /// `rows` is how much larger than designed the grid's rows are shown, `header` the same of its header.
    void setFactors(double fontFactor, float header, float rows);

    /// The height, in pixels, below which the letters of the rows would be cut.
    int lowestRow() const;
    /// The same of the header's lines, with their accents.
    int lowestHeader() const;

    /// `keptFree` pixels at either side of the cell are another widget's, not the text's.
    void paint(QPainter& painter, const QRect& rect, const Griglia& griglia, Casella casella,
               int keptFree = 0);
    /// Data cells beside each other: what several have in common is painted at once. The current one has a
    /// frame, a stronger one with the focus.
    void paintBlock(QPainter& painter, const CellBlock& block, const Griglia& griglia, bool focus);
    /// The bar of a column in the header, at the right of its texts, and the room for the longest; `rect` is
    /// the whole height of the header.
    static void paintSummary(QPainter& painter, const QRect& rect, const Griglia& griglia, int col);
    /// A line along the inside of the place's edges.
    static void paintFrame(QPainter& painter, const QRect& rect, Colore colore, int thickness);
    /// True when the cell's text is not shown whole in the place.
    bool cut(const QRect& rect, const Griglia& griglia, Casella casella, int keptFree = 0) const;

private:
    int sideBesideText(const QRect& rect) const;
    /// Where a cell's text stands: beside its picture, and between what stands at either side.
    QRect textPlace(const QRect& rect, const Cella& cella, int keptFree) const;
    /// The same for any cell: in the header a text too long to stand in the middle keeps clear of the
    /// column's bar.
    QRect textPlace(const QRect& rect, const Griglia& griglia, Casella casella, int keptFree) const;
    const FittingFont& font(const Griglia& griglia, Casella casella, int height) const;
    int pictureSide(const QRect& rect) const;
    FittedText fittedText(const QRect& place, const Griglia& griglia, Casella casella) const;
    void paintPicture(QPainter& painter, const QRect& rect, int picture, bool besideText);
    void paintText(QPainter& painter, const QRect& place, const Griglia& griglia, Casella casella);
    void paintBar(QPainter& painter, const QRect& bar, const FasciaImpegno& fascia, int col, Colore colore);
    /// The bar's picture; its drawings stand in a line where the bar is too low for a square of them.
    void paintBarPicture(QPainter& painter, const QRect& bar, int picture);
    /// Of one row, cells of one colour at once.
    static void paintGrounds(QPainter& painter, const CellBlock& block, int row, const Griglia& griglia);
    /// A line for each row and each column.
    static void paintLines(QPainter& painter, const CellBlock& block, const Griglia& griglia);
    /// What stands on the cell's ground and between its lines.
    void paintContents(QPainter& painter, const QRect& rect, const Griglia& griglia, Casella casella,
                       int keptFree = 0);
    static void paintMarks(QPainter& painter, const QRect& rect, const Griglia& griglia, Casella casella);

    using Fonts = std::array<FittingFont, Caratteri.size()>;

    Fonts m_headerFonts;
    Fonts m_rowFonts;    // as large as designed, where a row is high enough for them
    Fonts m_lowRowFonts; // as much smaller as the rows are lower
    int m_highEnough = 0;
    int m_largestPicture = 0;
    Pictures m_pictures;
};

} // namespace planner
