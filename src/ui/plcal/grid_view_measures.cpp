// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "engine/kinds/kind.h"
#include "ui/plcal/cell_painter.h"
#include "ui/plcal/grid_corner.h"
#include "ui/plcal/grid_header.h"
#include "ui/plcal/grid_model.h"
#include "ui/plcal/grid_view.h"

#include <QScrollBar>

#include <algorithm>
#include <numeric>

// How large the grid's parts are, and which of them is in sight.

namespace planner {

namespace {

/// What `sizeOf` gives for each of the rows or columns, counted from 0.
template <typename SizeOf>
std::vector<int> sizes(int count, SizeOf sizeOf) {
    std::vector<int> all(static_cast<std::size_t>(count));
    std::generate(all.begin(), all.end(), [&, next = 0]() mutable { return sizeOf(next++); });
    return all;
}

std::vector<int> columnWidths(const Griglia& griglia) {
    return sizes(griglia.Cols(), [&](int col) { return griglia.ColWidth(col); });
}

/// The factor that makes lengths just fit into `available` pixels.
float fittingScale(int available, const std::vector<int>& twips) {
    const int whole = std::accumulate(twips.begin(), twips.end(), 0);
    return static_cast<float>(std::max(available, 1) * TwipsPerPixel) /
           static_cast<float>(std::max(whole, 1));
}

} // namespace

void GridView::setScala(const Scala& scala) {
    m_scala = scala;
    applyMeasures();
}

void GridView::setIngrandimento(const Ingrandimento& ingrandimento) {
    const int first = firstColumnInSight();
    m_ingrandimento = ingrandimento;
    applyMeasures();
    if (regole(m_tipo).unGiorno) {
        scrollToColumn(first);
    }
    scrollToCurrentCell();
}

float GridView::columnScale() const {
    if (regole(m_tipo).unGiorno) {
        return m_scala.ScalaX * m_ingrandimento.cornice();
    }
    // A month is as wide as the window: what rounding and the scroll bar leave over is shared out too.
    const int scrollBar = regole(m_tipo).perCollaboratore ? verticalScrollBar()->sizeHint().width() : 0;
    return fittingScale(width() - 2 * frameWidth() - scrollBar, columnWidths(griglia())) *
           m_ingrandimento.cornice();
}

float GridView::rowScale() const {
    if (regole(m_tipo).perCollaboratore) {
        return m_scala.ScalaY;
    }
    // The twelve months fill the grid as long as they stay near their designed height.
    constexpr float smallest = 0.85F;
    const auto rows = sizes(griglia().Rows(), [this](int row) { return griglia().RowHeight(row); });
    return std::max(fittingScale(height() - 2 * frameWidth(), rows), m_scala.ScalaY * smallest);
}

void GridView::applyMeasures() {
    const std::vector<int> widths = pixelSizes(columnWidths(griglia()), columnScale());
    for (int col = Griglia::FixedCols(); col < griglia().Cols(); ++col) {
        m_columns->resizeSection(col - Griglia::FixedCols(), widths[static_cast<std::size_t>(col)]);
    }
    m_names->setThickness({widths.front()});
    applyRowMeasures();
    updateGeometries();
}

void GridView::applyRowMeasures() {
    const float scale = rowScale();
    const auto header = sizes(griglia().FixedRows(), [&](int row) {
        return std::max(pixels(griglia().RowHeight(row), scale * m_ingrandimento.cornice()),
                        m_painter.lowestHeader());
    });
    m_columns->setThickness(header);
    m_corner->setRowHeights(header);
    if (griglia().Rows() > griglia().FixedRows()) { // all data rows are of one height
        const auto height = static_cast<float>(griglia().RowHeight(griglia().FixedRows())) * scale *
                            m_ingrandimento.righe() / TwipsPerPixel;
        // Cut, so that what is to fit does fit.
        m_names->setDefaultSectionSize(std::max(static_cast<int>(height), m_painter.lowestRow()));
    }
}

void GridView::updateGeometries() {
    QTableView::updateGeometries();
    const QPoint origin(frameWidth(), frameWidth());
    m_corner->setGeometry(QRect(pos() + origin, QSize(m_names->width(), m_columns->height())));
    placeButtons();
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    applyMeasures();
}

void GridView::moveEvent(QMoveEvent* event) {
    QTableView::moveEvent(event);
    updateGeometries();
}

void GridView::setVisible(bool visible) {
    QTableView::setVisible(visible);
    m_corner->setVisible(visible);
}

void GridView::placeButtons() {
    m_corner->placeButtons(m_scala.ScalaX);
}

int GridView::firstColumnInSight() const {
    const int column = columnAt(0);
    const bool cut = column >= 0 && columnViewportPosition(column) < 0;
    return GridModel::gridCol(std::clamp(column + (cut ? 1 : 0), 0, m_model->columnCount() - 1));
}

void GridView::scrollToCurrentRow() {
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
    scrollToCurrentCell();
}

void GridView::scrollToCurrentCell() {
    scrollTo(currentCell());
}

void GridView::scrollToColumn(int colonna) {
    horizontalScrollBar()->setValue(m_columns->sectionPosition(colonna - Griglia::FixedCols()));
}

} // namespace planner
