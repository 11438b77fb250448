// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "forms/plcal/cell_painter.h"
#include "forms/plcal/design.h"
#include "forms/plcal/geometry.h"
#include "forms/plcal/grid_model.h"

#include <QTableView>

namespace planner {

class GridCorner;
class GridHeader;

/// One of the planner's grids on the screen: header rows and names stay in sight, the rest scrolls.
class GridView : public QTableView {
    Q_OBJECT
public:
    GridView(Griglia& griglia, TipoPlanner tipo, CellPainter& painter, GridModel::Frase frase,
             QWidget* parent);

    /// The factors that turn the grid's twips into pixels.
    void setScala(const Scala& scala);
    void placeButtons();
    /// Makes a grid column, counted from 1, the first one in sight.
    void scrollToColumn(int colonna);
    /// Makes the grid's current cell the view's, without scrolling and without an event.
    void showCurrentCell();
    /// Disables the period buttons that would do nothing.
    void updateButtons(const std::function<bool(const PulsantePeriodo&)>& active);
    /// Shows or hides the corner too.
    void setVisible(bool visible) override;

Q_SIGNALS:
    // Rows and columns are the grid's own.
    /// The user made the cell the current one, with the mouse or otherwise.
    void cellSelected(int riga, int colonna, bool conMouse);
    void cellClicked(int riga, int colonna);
    /// Double click or Enter.
    void cellActivated();
    void menuRequested(const QPoint& globalPosition);
    void periodButtonClicked(const planner::PulsantePeriodo& pulsante);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void updateGeometries() override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void setUpBehaviour();
    void connectEvents();
    void emitClicked(const QModelIndex& index);
    void applyMeasures();
    void applyRowMeasures();
    float columnScale() const;
    float rowScale() const;

    TipoPlanner m_tipo;
    GridModel* m_model;
    GridHeader* m_columns;
    GridHeader* m_names;
    GridCorner* m_corner;
    Scala m_scala;
    bool m_byCode = false;
    bool m_byMouse = false;
};

} // namespace planner
