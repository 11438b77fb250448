// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/design.h"
#include "forms/plcal/gesti.h"
#include "forms/plcal/ingrandimento.h"

#include <QTableView>

#include <functional>

namespace planner {

class CellPainter;
class GridCorner;
class GridHeader;
class GridModel;
struct VociGriglia;

/// One of the planner's grids on the screen: header rows and names stay in sight, the rest scrolls.
class GridView : public QTableView {
    Q_OBJECT
public:
    /// `voci` give what is said of a place.
    GridView(Griglia& griglia, TipoPlanner tipo, CellPainter& painter, const VociGriglia& voci,
             QWidget* parent);

    const Griglia& griglia() const;
    TipoPlanner tipo() const { return m_tipo; }

    /// What is said of a name or a column where the mouse rests on it.
    void setTips(const std::function<std::string(Casella)>& tips);

    /// The factors that turn the grid's twips into pixels.
    void setScala(const Scala& scala);
    /// How much larger they are than that. The current cell stays in sight, and so does the first hour.
    void setIngrandimento(const Ingrandimento& ingrandimento);
    void placeButtons();
    /// Makes a grid column, counted from 1, the first one in sight.
    void scrollToColumn(int colonna);
    /// The current cell is the grid's; what the toolkit takes for it follows, without scrolling and without
    /// an event.
    void showCurrentCell();
    /// Has a screen reader say the text, and the current cell after it, when that is shown the next time.
    void sayBeforeCurrentCell(const QString& text) { m_beforeCurrent = text; }
    void scrollToCurrentCell();
    /// Disables the period buttons that would do nothing.
    void updateButtons(const std::function<bool(const PulsantePeriodo&)>& active);
    /// Shows or hides the corner too.
    void setVisible(bool visible) override;

    /// The first column in sight beside the names, the grid's own.
    int firstColumnInSight() const;
    /// Scrolls to the beginning, and from there as far as the current cell's row needs it.
    void scrollToCurrentRow();

Q_SIGNALS:
    /// The user acted on a place of the grid: once for each gesture, and for nothing that the toolkit does.
    void gesture(const planner::Gesto& gesto);
    /// By a key or, where the mouse is, by its button.
    void menuRequested(const QPoint& globalPosition, bool byKey);
    /// The wheel was turned in the manner of a command.
    void commandGiven(planner::ComandoGriglia comando);
    void periodButtonClicked(const planner::PulsantePeriodo& pulsante);
    /// The mouse is on a name or a column; empty when it is on none.
    void headerPointed(const QString& tip);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent*) override {}    // a drag selects nothing
    void mouseReleaseEvent(QMouseEvent*) override {} // a click acts at the press
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyboardSearch(const QString&) override {} // letters are no way to a cell
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void updateGeometries() override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void setUpBehaviour();
    void connectEvents();
    QModelIndex currentCell() const;
    /// The model's cells that lie in a part of the cells in sight: first and last row and column.
    QRect cellsIn(const QRect& part) const;
    void paintCells(QPainter& painter, const QRect& cells);
    /// The centre of the current cell, scrolled into sight.
    QPoint currentCellOnScreen();
    void announce(const QModelIndex& index, Mezzo mezzo);
    static std::optional<CursorAction> cursorActionOf(const QKeyEvent& event);
    void moveByKey(CursorAction action, Qt::KeyboardModifiers modifiers);
    void applyMeasures();
    void applyRowMeasures();
    float columnScale() const;
    float rowScale() const;

    TipoPlanner m_tipo;
    CellPainter& m_painter;
    GridModel* m_model;
    GridHeader* m_columns;
    GridHeader* m_names;
    GridCorner* m_corner;
    Scala m_scala;
    Ingrandimento m_ingrandimento;
    int m_turned = 0;           // of the wheel, short of a step
    bool m_otherPeriod = false; // since the current cell was shown last
    QString m_beforeCurrent;    // to be said before it when it is shown the next time
};

} // namespace planner
