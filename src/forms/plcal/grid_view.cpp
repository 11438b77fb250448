// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/grid_view.h"

#include "forms/plcal/cell_delegate.h"
#include "forms/plcal/grid_corner.h"
#include "forms/plcal/grid_header.h"

#include <QContextMenuEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace planner {

namespace {

int totalWidth(const Griglia& griglia) {
    int twips = 0;
    for (int col = 0; col < griglia.Cols(); ++col) {
        twips += griglia.ColWidth(col);
    }
    return twips;
}

int totalHeight(const Griglia& griglia) {
    int twips = 0;
    for (int row = 0; row < griglia.Rows(); ++row) {
        twips += griglia.RowHeight(row);
    }
    return twips;
}

/// The factor that makes `twips` just fit into `available` pixels.
float fittingScale(int available, int twips) {
    return static_cast<float>(std::max(available, 1) * TwipsPerPixel) /
           static_cast<float>(std::max(twips, 1));
}

} // namespace

GridView::GridView(Griglia& griglia, TipoPlanner tipo, CellPainter& painter, GridModel::Frase frase,
                   QWidget* parent)
    : QTableView(parent), m_tipo(tipo), m_model(new GridModel(griglia, std::move(frase), this)),
      m_columns(new GridHeader(Qt::Horizontal, *m_model, painter, this)),
      m_names(new GridHeader(Qt::Vertical, *m_model, painter, this)),
      m_corner(
          new GridCorner(griglia, tipo, painter, parent)) { // in a table a screen reader finds only cells
    setHorizontalHeader(m_columns);
    setVerticalHeader(m_names);
    setModel(m_model);
    setItemDelegate(new CellDelegate(*m_model, painter, this));
    setUpBehaviour();
    connectEvents();
}

void GridView::connectEvents() {
    connect(m_model, &GridModel::measuresChanged, this, &GridView::applyMeasures);
    connect(m_model, &GridModel::headersChanged, this, [this] {
        m_columns->viewport()->update();
        m_names->viewport()->update();
        m_corner->update();
    });
    connect(this, &QAbstractItemView::clicked, this, &GridView::emitClicked);
    connect(this, &QAbstractItemView::doubleClicked, this, &GridView::cellActivated);
    connect(m_names, &GridHeader::pressed, this, [this](int row) {
        setFocus();
        setCurrentIndex(m_model->index(row, std::max(currentIndex().column(), 0)));
        emitClicked({});
    });
    connect(m_corner, &GridCorner::periodButtonClicked, this, &GridView::periodButtonClicked);
}

void GridView::emitClicked(const QModelIndex& index) {
    const QModelIndex current = currentIndex();
    if (current.isValid()) {
        // A click on the cell that is current already selects it all the same.
        Q_EMIT cellSelected(m_model->gridRow(current.row()), GridModel::gridCol(current.column()), true);
    }
    if (index.isValid()) {
        Q_EMIT cellClicked(m_model->gridRow(index.row()), GridModel::gridCol(index.column()));
    }
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!m_byCode && current.isValid()) {
        Q_EMIT cellSelected(m_model->gridRow(current.row()), GridModel::gridCol(current.column()), m_byMouse);
    }
}

void GridView::mousePressEvent(QMouseEvent* event) {
    const QScopedValueRollback byMouse(m_byMouse, true);
    QTableView::mousePressEvent(event);
}

void GridView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT cellActivated();
        break;
    case Qt::Key_Space:
        emitClicked(currentIndex());
        break;
    default:
        QTableView::keyPressEvent(event);
    }
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    const QModelIndex under = indexAt(viewport()->mapFromGlobal(event->globalPos()));
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    if (byMouse && !under.isValid()) {
        return;
    }
    const QPoint atCell = viewport()->mapToGlobal(visualRect(currentIndex()).center());
    Q_EMIT menuRequested(byMouse ? event->globalPos() : atCell);
}

void GridView::showCurrentCell() {
    const Griglia& griglia = m_model->griglia();
    const QModelIndex wanted =
        m_model->index(griglia.Row() - griglia.FixedRows(), griglia.Col() - Griglia::FixedCols());
    if (wanted == currentIndex()) {
        return;
    }
    const QScopedValueRollback byCode(m_byCode, true);
    setAutoScroll(false);
    setCurrentIndex(wanted);
    setAutoScroll(true);
}

void GridView::updateButtons(const std::function<bool(const PulsantePeriodo&)>& active) {
    m_corner->updateButtons(active);
}

void GridView::setUpBehaviour() {
    setShowGrid(false); // the cells draw their own lines
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false); // Tab leaves the grid
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setWordWrap(false);
    // The cells' colours are given, and light: what lies outside them follows, on a dark desktop too.
    QPalette light = palette();
    light.setColor(QPalette::Base, qtColor(Colore::intestazione));
    light.setColor(QPalette::Text, qtColor(Colore::nero));
    setPalette(light);
    setHorizontalScrollBarPolicy(m_tipo == TipoPlanner::Giornaliero ? Qt::ScrollBarAlwaysOn
                                                                    : Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(m_tipo == TipoPlanner::Annuale ? Qt::ScrollBarAsNeeded
                                                              : Qt::ScrollBarAlwaysOn);
}

void GridView::setScala(const Scala& scala) {
    m_scala = scala;
    applyMeasures();
}

float GridView::columnScale() const {
    if (m_tipo == TipoPlanner::Giornaliero) {
        return m_scala.ScalaX;
    }
    // A month is as wide as the window: what rounding and the scroll bar leave over is shared out too.
    const int scrollBar = m_tipo == TipoPlanner::Mensile ? verticalScrollBar()->sizeHint().width() : 0;
    return fittingScale(width() - 2 * frameWidth() - scrollBar, totalWidth(m_model->griglia()));
}

float GridView::rowScale() const {
    if (m_tipo != TipoPlanner::Annuale) {
        return m_scala.ScalaY;
    }
    // The twelve months fill the grid as long as they stay near their designed height.
    constexpr float smallest = 0.85F;
    return std::max(fittingScale(height() - 2 * frameWidth(), totalHeight(m_model->griglia())),
                    m_scala.ScalaY * smallest);
}

void GridView::applyMeasures() {
    const Griglia& griglia = m_model->griglia();
    std::vector<int> twips;
    for (int col = 0; col < griglia.Cols(); ++col) {
        twips.push_back(griglia.ColWidth(col));
    }
    const std::vector<int> widths = pixelSizes(twips, columnScale());
    for (int col = Griglia::FixedCols(); col < griglia.Cols(); ++col) {
        m_columns->resizeSection(col - Griglia::FixedCols(), widths[static_cast<std::size_t>(col)]);
    }
    m_names->setThickness({widths.front()});
    applyRowMeasures();
    updateGeometries();
}

void GridView::applyRowMeasures() {
    const Griglia& griglia = m_model->griglia();
    const float scale = rowScale();
    std::vector<int> header;
    for (int row = 0; row < griglia.FixedRows(); ++row) {
        header.push_back(pixels(griglia.RowHeight(row), scale));
    }
    m_columns->setThickness(header);
    m_corner->setRowHeights(header);
    if (griglia.Rows() > griglia.FixedRows()) { // all data rows are of one height
        const auto height =
            static_cast<float>(griglia.RowHeight(griglia.FixedRows())) * scale / TwipsPerPixel;
        m_names->setDefaultSectionSize(static_cast<int>(height)); // cut, so that what is to fit does fit
    }
}

void GridView::updateGeometries() {
    QTableView::updateGeometries();
    const QPoint origin(frameWidth(), frameWidth());
    m_corner->setGeometry(QRect(pos() + origin, QSize(m_names->width(), m_columns->height())));
    m_corner->raise();
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

void GridView::scrollToColumn(int colonna) {
    horizontalScrollBar()->setValue(m_columns->sectionPosition(colonna - Griglia::FixedCols()));
}

} // namespace planner
