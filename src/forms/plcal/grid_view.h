// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"
#include "forms/plcal/cell_painter.h"
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
    GridView(Griglia& griglia, TipoPlanner tipo, CellPainter& painter, QWidget* parent);

    /// The factors that turn the grid's twips into pixels.
    void setScala(const Scala& scala);
    void placeButtons();
    /// Makes a grid column, counted from 1, the first one in sight.
    void scrollToColumn(int colonna);

protected:
    void updateGeometries() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void setUpBehaviour();
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
};

} // namespace planner
