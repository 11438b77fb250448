// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plcal/gesti.h"
#include "ui/plcal/cell_painter.h"

#include <QHeaderView>

#include <functional>
#include <string>

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

    /// What is said of a cell of the header, in the grid's own rows and columns; UTF-8, empty for nothing.
    void setTips(std::function<std::string(Casella)> tips) { m_tips = std::move(tips); }

    QSize sizeHint() const override;

Q_SIGNALS:
    /// A section was pressed with the left or the right button.
    void pressed(int section, planner::Mezzo mezzo);
    void menuRequested(const QPoint& globalPosition, bool byKey);
    /// The mouse rests on a section of which something is said; empty when it is on none.
    void pointed(const QString& tip);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent*) override {}
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

private:
    QString tipAt(const QPoint& position) const;
    QString toolTipAt(const QPoint& position) const;
    void point(const QString& tip);

    const GridModel& m_model;
    CellPainter& m_painter;
    std::vector<int> m_sizes;
    std::function<std::string(Casella)> m_tips;
    QString m_pointed;
};

} // namespace planner
