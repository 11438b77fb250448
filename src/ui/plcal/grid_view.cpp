// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/grid_view.h"

#include "engine/kinds/kind.h"
#include "ui/kit/appearance.h"
#include "ui/kit/controls.h"
#include "ui/kit/view_accessible.h"
#include "ui/plcal/cell_painter.h"
#include "ui/plcal/grid_corner.h"
#include "ui/plcal/grid_header.h"
#include "ui/plcal/grid_model.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <utility>

namespace planner {

namespace {

std::optional<Mezzo> mezzoDi(Qt::MouseButton button) {
    return button == Qt::LeftButton    ? std::optional(Mezzo::clic)
           : button == Qt::RightButton ? std::optional(Mezzo::clicDestro)
                                       : std::nullopt;
}

} // namespace

GridView::GridView(Griglia& griglia, TipoPlanner tipo, CellPainter& painter, const VociGriglia& voci,
                   QWidget* parent)
    : QTableView(parent), m_tipo(tipo), m_painter(painter), m_model(new GridModel(griglia, voci, this)),
      m_columns(new GridHeader(Qt::Horizontal, *m_model, painter, this)),
      m_names(new GridHeader(Qt::Vertical, *m_model, painter, this)),
      m_corner(
          new GridCorner(griglia, tipo, painter, parent)) { // in a table a screen reader finds only cells
    installViewAccessible<GridView>();
    setHorizontalHeader(m_columns);
    setVerticalHeader(m_names);
    setModel(m_model);
    setUpBehaviour();
    connectEvents();
}

void GridView::connectEvents() {
    connect(m_model, &GridModel::measuresChanged, this, &GridView::applyMeasures);
    connect(m_model, &GridModel::headersChanged, this, [this] {
        m_columns->viewport()->update();
        m_names->viewport()->update();
        m_corner->updateCells();
    });
    connect(m_model, &GridModel::periodChanged, this, [this] { m_otherPeriod = true; });
    connect(m_names, &GridHeader::pressed, this, [this](int row, Mezzo mezzo) {
        setFocus();
        Q_EMIT gesture({{m_model->gridRow(row), 0}, mezzo});
    });
    if (effettoGesto(m_tipo, Luogo::nome) != nullptr) {
        connect(m_names, &GridHeader::menuRequested, this, &GridView::menuRequested);
    }
    connect(m_corner, &GridCorner::periodButtonClicked, this, &GridView::periodButtonClicked);
}

void GridView::setTips(const std::function<std::string(Casella)>& tips) {
    for (GridHeader* header : {m_columns, m_names}) {
        header->setTips(tips);
        connect(header, &GridHeader::pointed, this, &GridView::headerPointed);
    }
}

void GridView::announce(const QModelIndex& index, Mezzo mezzo) {
    if (index.isValid()) {
        Q_EMIT gesture({m_model->casella(index), mezzo});
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
    if (event->button() == Qt::LeftButton && index == currentCell()) {
        announce(index, Mezzo::doppioClic);
    } else {
        mousePressEvent(event);
    }
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event)) {
        announce(currentCell(), Mezzo::invio);
    } else if (event->key() == Qt::Key_Space) {
        announce(currentCell(), Mezzo::spazio);
    } else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        // The Menu key comes as a context menu event.
        Q_EMIT menuRequested(currentCellOnScreen(), /*byKey=*/true);
    } else if (const auto action = cursorActionOf(*event)) {
        moveByKey(*action, event->modifiers());
    } else {
        event->ignore(); // the window may have a use for it
    }
}

void GridView::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QTableView::wheelEvent(event);
        return;
    }
    m_turned += event->angleDelta().y();
    while (std::abs(m_turned) >= QWheelEvent::DefaultDeltasPerStep) {
        const bool away = m_turned > 0;
        m_turned -= away ? QWheelEvent::DefaultDeltasPerStep : -QWheelEvent::DefaultDeltasPerStep;
        Q_EMIT commandGiven(away ? ComandoGriglia::ingrandisci : ComandoGriglia::riduci);
    }
    event->accept();
}

std::optional<QAbstractItemView::CursorAction> GridView::cursorActionOf(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) {
        return std::nullopt; // the period's keys, where the period ends
    }
    static constexpr std::array<std::pair<Qt::Key, CursorAction>, 8> moves{
        {{Qt::Key_Left, MoveLeft},
         {Qt::Key_Right, MoveRight},
         {Qt::Key_Up, MoveUp},
         {Qt::Key_Down, MoveDown},
         {Qt::Key_Home, MoveHome},
         {Qt::Key_End, MoveEnd},
         {Qt::Key_PageUp, MovePageUp},
         {Qt::Key_PageDown, MovePageDown}}};
    const auto found = std::find_if(moves.begin(), moves.end(),
                                    [&event](const auto& move) { return move.first == event.key(); });
    return found == moves.end() ? std::nullopt : std::optional(found->second);
}

void GridView::moveByKey(CursorAction action, Qt::KeyboardModifiers modifiers) {
    showCurrentCell(); // from which the toolkit moves
    QModelIndex target = moveCursor(action, modifiers);
    if (action == MoveEnd && modifiers.testFlag(Qt::ControlModifier)) {
        const int last = ultimaRigaConNome(griglia()) - griglia().FixedRows(); // none of the rows to spare
        target = target.siblingAtRow(last);
    }
    if (target.isValid() && target != currentCell()) {
        announce(target, Mezzo::frecce);
        scrollToCurrentCell();
    }
}

QRect GridView::cellsIn(const QRect& part) const {
    return {QPoint(columnAt(part.left()), rowAt(part.top())),
            QPoint(columnAt(part.right()), rowAt(part.bottom()))};
}

// The toolkit's own way through the cells, by indexes, options and a delegate, takes as long as to paint
// them.
void GridView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const QRect all(columnViewportPosition(0), rowViewportPosition(0), m_columns->length(),
                    m_names->length());
    for (const QRect& beyond : event->region().subtracted(all)) {
        painter.fillRect(beyond, palette().base());
    }
    for (const QRect& part : event->region().intersected(all)) {
        paintCells(painter, cellsIn(part));
    }
}

void GridView::paintCells(QPainter& painter, const QRect& cells) {
    CellBlock block{{m_model->gridRow(cells.top()), GridModel::gridCol(cells.left())}, {}, {}};
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        block.tops.push_back(rowViewportPosition(row));
    }
    block.tops.push_back(block.tops.back() + rowHeight(cells.bottom()));
    for (int column = cells.left(); column <= cells.right(); ++column) {
        block.lefts.push_back(columnViewportPosition(column));
    }
    block.lefts.push_back(block.lefts.back() + columnWidth(cells.right()));
    m_painter.paintBlock(painter, block, griglia(), hasFocus());
}

// Of the focus the current cell's frame tells, and an inactive window looks as an active one: the toolkit's
// own handlers would paint every cell anew.
void GridView::focusInEvent(QFocusEvent*) {
    update(currentIndex());
}

void GridView::focusOutEvent(QFocusEvent*) {
    update(currentIndex());
    m_model->nameCurrentAfter({}); // that has been said
}

bool GridView::viewportEvent(QEvent* event) {
    return changesActivation(*event) || QTableView::viewportEvent(event);
}

void GridView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    // Nothing is selected by mouse, keys or code: a screen reader has pressed a cell.
    if (!selected.isEmpty()) {
        announce(selected.indexes().front(), Mezzo::assistenza);
        selectionModel()->clearSelection(); // so that the same cell can be pressed again
        scrollToCurrentCell();
    }
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    const QModelIndex under = indexAt(viewport()->mapFromGlobal(event->globalPos()));
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    if (byMouse && !under.isValid()) {
        return;
    }
    Q_EMIT menuRequested(byMouse ? event->globalPos() : currentCellOnScreen(), !byMouse);
}

QPoint GridView::currentCellOnScreen() {
    scrollToCurrentCell();
    return viewport()->mapToGlobal(visualRect(currentCell()).center());
}

const Griglia& GridView::griglia() const {
    return m_model->griglia();
}

QModelIndex GridView::currentCell() const {
    return m_model->index(griglia().Row() - griglia().FixedRows(), griglia().Col() - Griglia::FixedCols());
}

void GridView::showCurrentCell() {
    const QString before = std::exchange(m_beforeCurrent, {});
    m_model->nameCurrentAfter(before);
    const bool other = std::exchange(m_otherPeriod, false) || !before.isEmpty();
    if (other) {
        renewItems(*this); // in the same place, another day
    }
    if (currentCell() != currentIndex()) {
        setAutoScroll(false);
        selectionModel()->setCurrentIndex(currentCell(), QItemSelectionModel::NoUpdate);
        setAutoScroll(true);
    } else if (other && hasFocus()) {
        QAccessibleEvent onCell(this, QAccessible::Focus);
        QAccessible::updateAccessibility(&onCell);
    }
}

void GridView::updateButtons(const std::function<bool(const PulsantePeriodo&)>& active) {
    m_corner->setPeriod(m_model->cornerName());
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
    viewport()->setAutoFillBackground(false); // it is painted whole
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    // The cells' colours are given, and light: what lies outside them follows, on a dark desktop too.
    QPalette light = palette();
    light.setColor(QPalette::Base, qtColor(Colore::intestazione));
    light.setColor(QPalette::Text, qtColor(Colore::nero));
    setPalette(light);
    setHorizontalScrollBarPolicy(regole(m_tipo).unGiorno ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(regole(m_tipo).perCollaboratore ? Qt::ScrollBarAlwaysOn
                                                               : Qt::ScrollBarAsNeeded);
}

} // namespace planner
