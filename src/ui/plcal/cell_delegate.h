// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/plcal/cell_painter.h"

#include <QAbstractItemDelegate>

namespace planner {

class GridModel;

/// Paints the data cells of a grid, and a frame around the current one.
class CellDelegate : public QAbstractItemDelegate {
    Q_OBJECT
public:
    CellDelegate(const GridModel& model, CellPainter& painter, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const GridModel& m_model;
    CellPainter& m_painter;
};

} // namespace planner
