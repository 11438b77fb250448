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
    const Griglia& griglia = m_model.griglia();
    const Casella casella = m_model.casella(index);
    m_painter.paint(*painter, option.rect, griglia, casella);
    const bool focus = option.state.testFlag(QStyle::State_HasFocus);
    if (focus || casella == griglia.corrente()) {
        CellPainter::paintFrame(*painter, option.rect.adjusted(0, 0, -1, -1),
                                cornice(griglia.aspetto(casella).fondo), focus ? 2 : 1);
    }
    painter->restore();
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return option.rect.size();
}

} // namespace planner
