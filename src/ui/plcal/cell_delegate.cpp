// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/cell_delegate.h"

#include "ui/plcal/grid_model.h"

#include <QPainter>
#include <QStyleOption>

namespace planner {

CellDelegate::CellDelegate(const GridModel& model, CellPainter& painter, QObject* parent)
    : QAbstractItemDelegate(parent), m_model(model), m_painter(painter) {}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    painter->save();
    m_painter.paint(*painter, option.rect, m_model.griglia(), m_model.casella(index));
    if (option.state & QStyle::State_HasFocus) {
        constexpr int frame = 2;
        painter->setPen(QPen(qtColor(Colore::navy), frame));
        painter->drawRect(option.rect.adjusted(1, 1, -frame, -frame));
    }
    painter->restore();
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return option.rect.size();
}

} // namespace planner
