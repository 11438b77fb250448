// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace planner {

/// Draws the rows of the staff list with some air between them, and check boxes that show on every theme.
class StaffListDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    void frameCheckBox(QPainter& painter, const QStyleOptionViewItem& option) const;
};

} // namespace planner
