// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/grid_view.h"

#include "engine/kinds/kind.h"
#include "ui/plcal/cell_delegate.h"
#include "ui/plcal/grid_corner.h"
#include "ui/plcal/grid_header.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
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

std::optional<Mezzo> mezzoDi(Qt::MouseButton button) {
    return button == Qt::LeftButton    ? std::optional(Mezzo::clic)
           : button == Qt::RightButton ? std::optional(Mezzo::clicDestro)
                                       : std::nullopt;
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
    connect(m_names, &GridHeader::pressed, this, [this](int row, Mezzo mezzo) {
        setFocus();
        Q_EMIT gesture({m_model->gridRow(row), 0, mezzo});
    });
    if (effettoGesto(m_tipo, Luogo::nome) != nullptr) {
        connect(m_names, &GridHeader::menuRequested, this, &GridView::menuRequested);
    }
    connect(m_corner, &GridCorner::periodButtonClicked, this, &GridView::periodButtonClicked);
}

void GridView::announce(const QModelIndex& index, Mezzo mezzo) {
    if (index.isValid()) {
        Q_EMIT gesture({m_model->gridRow(index.row()), GridModel::gridCol(index.column()), mezzo});
    }
}

void GridView::mousePressEvent(QMouseEvent* event) {
    if (const auto mezzo = mezzoDi(event->button())) {
        announce(indexAt(event->position().toPoint()), *mezzo);
    }
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    // Only on the cell that the first press has made the current one: the grid may have moved below the
    // mouse.
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index == currentIndex()) {
        announce(index, Mezzo::doppioClic);
    } else {
        mousePressEvent(event);
    }
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        announce(currentIndex(), Mezzo::invio);
    } else if (event->key() == Qt::Key_Space) {
        announce(currentIndex(), Mezzo::spazio);
    } else if (const auto action = cursorActionOf(*event)) {
        moveByKey(*action, event->modifiers());
    } else {
        event->ignore(); // the window may have a use for it
    }
}

std::optional<QAbstractItemView::CursorAction> GridView::cursorActionOf(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) {
        return std::nullopt; // the period's keys, where the period ends
    }
    switch (event.key()) {
    case Qt::Key_Left:
        return MoveLeft;
    case Qt::Key_Right:
        return MoveRight;
    case Qt::Key_Up:
        return MoveUp;
    case Qt::Key_Down:
        return MoveDown;
    case Qt::Key_Home:
        return MoveHome;
    case Qt::Key_End:
        return MoveEnd;
    case Qt::Key_PageUp:
        return MovePageUp;
    case Qt::Key_PageDown:
        return MovePageDown;
    default:
        return std::nullopt;
    }
}

void GridView::moveByKey(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const QModelIndex target = moveCursor(action, modifiers);
    if (target.isValid() && target != currentIndex()) {
        announce(target, Mezzo::frecce);
        scrollTo(currentIndex());
    }
}

void GridView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    // Nothing is selected by mouse, keys or code: a screen reader has pressed a cell.
    if (!selected.isEmpty()) {
        announce(selected.indexes().front(), Mezzo::assistenza);
        selectionModel()->clearSelection(); // so that the same cell can be pressed again
        scrollTo(currentIndex());
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
    if (wanted != currentIndex()) {
        setAutoScroll(false);
        selectionModel()->setCurrentIndex(wanted, QItemSelectionModel::NoUpdate);
        setAutoScroll(true);
    }
}

void GridView::updateButtons(const std::function<bool(const PulsantePeriodo&)>& active) {
    m_corner->updateButtons(active, *this);
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
    setHorizontalScrollBarPolicy(regole(m_tipo).unGiorno ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(regole(m_tipo).perCollaboratore ? Qt::ScrollBarAlwaysOn
                                                               : Qt::ScrollBarAsNeeded);
}

void GridView::setScala(const Scala& scala) {
    m_scala = scala;
    applyMeasures();
}

float GridView::columnScale() const {
    if (regole(m_tipo).unGiorno) {
        return m_scala.ScalaX;
    }
    // A month is as wide as the window: what rounding and the scroll bar leave over is shared out too.
    const int scrollBar = regole(m_tipo).perCollaboratore ? verticalScrollBar()->sizeHint().width() : 0;
    return fittingScale(width() - 2 * frameWidth() - scrollBar, totalWidth(m_model->griglia()));
}

float GridView::rowScale() const {
    if (regole(m_tipo).perCollaboratore) {
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

int GridView::firstColumnInSight() const {
    const int column = columnAt(0);
    const bool cut = column >= 0 && columnViewportPosition(column) < 0;
    return GridModel::gridCol(std::clamp(column + (cut ? 1 : 0), 0, m_model->columnCount() - 1));
}

void GridView::scrollToCurrentRow() {
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
    scrollTo(currentIndex());
}

void GridView::scrollToColumn(int colonna) {
    horizontalScrollBar()->setValue(m_columns->sectionPosition(colonna - Griglia::FixedCols()));
}

} // namespace planner
