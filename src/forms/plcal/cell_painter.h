// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/griglia.h"
#include "platform/qt/appearance.h"
#include "platform/qt/pictures.h"

#include <QFont>

#include <array>

class QPainter;
class QRect;

namespace planner {

/// Paints the cells of a grid: background, picture, text, lines. Delegate, headers and corner share it, so
/// that every cell looks the same wherever it stands.
class CellPainter {
public:
    /// Fonts grow with the screen; below the design-time size they stay readable.
    explicit CellPainter(double fontFactor);

    void setFontFactor(double fontFactor);

    void paint(QPainter& painter, const QRect& rect, const Griglia& griglia, int row, int col);

private:
    void paintPicture(QPainter& painter, const QRect& rect, int picture, bool besideText);
    void paintText(QPainter& painter, const QRect& rect, const Griglia& griglia, int row, int col);
    void paintBar(QPainter& painter, const QRect& bar, const FasciaImpegno& fascia, int col, bool marked);
    void paintToday(QPainter& painter, const QRect& rect);
    void paintLines(QPainter& painter, const QRect& rect, const Griglia& griglia, int row, int col);

    std::array<QFont, Caratteri.size()> m_fonts;
    Pictures m_pictures;
};

} // namespace planner
