// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/gesti.h"
#include "ui/plcal/cell_painter.h"

#include <QHeaderView>

namespace planner {

class GridModel;

/// A grid's fixed rows above the data, or its first column beside it: they stay in sight when the data
/// scrolls.
class GridHeader : public QHeaderView {
    Q_OBJECT
public:
    GridHeader(Qt::Orientation orientation, const GridModel& model, CellPainter& painter, QWidget* parent);

    /// The header's extent across its sections, one size per fixed row or column, in pixels.
    void setThickness(const std::vector<int>& sizes);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// A section was pressed with the left or the right button.
    void pressed(int section, planner::Mezzo mezzo);
    void menuRequested(const QPoint& globalPosition);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent*) override {}
    void mouseReleaseEvent(QMouseEvent*) override {}
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

private:
    QString toolTipAt(const QPoint& position) const;

    const GridModel& m_model;
    CellPainter& m_painter;
    std::vector<int> m_sizes;
};

} // namespace planner
