// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfcollab/staff_list_delegate.h"

#include <QApplication>
#include <QPainter>

namespace planner {

QSize StaffListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, option.fontMetrics.height() / 2);
}

void StaffListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    QStyleOptionViewItem prepared = option;
    initStyleOption(&prepared, index);
    if (prepared.features.testFlag(QStyleOptionViewItem::HasCheckIndicator)) {
        frameCheckBox(*painter, prepared);
    }
}

void StaffListDelegate::frameCheckBox(QPainter& painter, const QStyleOptionViewItem& option) const {
    // The style's own frame is darker than the window, which on a dark desktop is not to be seen.
    const QStyle* style = option.widget == nullptr ? QApplication::style() : option.widget->style();
    const QRect box = style->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, option.widget);
    QColor line = option.palette.color(QPalette::Text);
    line.setAlphaF(0.6F);
    painter.save();
    painter.setPen(line);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box.adjusted(0, 0, -1, -1));
    painter.restore();
}

} // namespace planner
