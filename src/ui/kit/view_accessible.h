// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QHash>

class QHeaderView;

namespace planner {

class ItemAccessible;

/// A view's table for assistive programs, its headers included. It is called a pane of items, not a table of
/// cells: a screen reader says a table's size whenever the focus comes to it, and reads the whole row
/// whenever the row changes; of items it reads the one that it is told of. A cell's name and description are
/// the model's accessible text and description, a header's name is the model's.
class ViewAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit ViewAccessible(QAbstractItemView* view);
    ~ViewAccessible() override;

    QAbstractItemView* view() const;
    const QHeaderView* rowHeader() const;    // null without one
    const QHeaderView* columnHeader() const; // null without one
    /// The cell, or with -1 for the row or the column the header; null outside.
    QAccessibleInterface* item(int row, int column) const;
    int itemNumber(int row, int column) const;

    void* interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override;
    QAccessibleInterface* child(int number) const override;
    int indexOfChild(const QAccessibleInterface* item) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override { return 0; }
    QList<QAccessibleInterface*> selectedCells() const override { return {}; }
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    /// After any change but that of single cells the items are new ones: an assistive program may keep what
    /// it has read of one.
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

private:
    void forgetItems();
    int perRow() const { return columnCount() + (rowHeader() != nullptr ? 1 : 0); }

    mutable QHash<int, QAccessible::Id> m_items; // by number
};

/// What the view's items say is other than before: they become new ones. Whoever has the focus on one must be
/// told of it again.
void renewItems(QAbstractItemView& view);

/// Has the views of these classes described so.
template <typename... Views>
void installViewAccessible() {
    QAccessible::installFactory([](const QString& name, QObject* object) -> QAccessibleInterface* {
        const bool ours = ((name == QLatin1String(Views::staticMetaObject.className())) || ...);
        return ours ? new ViewAccessible(static_cast<QAbstractItemView*>(object)) : nullptr;
    });
}

} // namespace planner
