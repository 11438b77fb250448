// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/view_accessible.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QTableView>
#include <QTreeView>

namespace planner {

/// A cell or a header of a view's table.
class ItemAccessible : public QAccessibleInterface,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface {
public:
    ItemAccessible(const ViewAccessible& table, int row, int column)
        : m_table(table), m_row(row), m_column(column) {}

    int number() const { return m_table.itemNumber(m_row, m_column); }

    bool isValid() const override { return m_table.isValid() && m_row < m_table.rowCount(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_table.window(); }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(m_table.view());
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override { return false; }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return header(-1, m_column); }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return header(m_row, -1); }
    int columnIndex() const override { return m_column; }
    int rowIndex() const override { return m_row; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

    QStringList actionNames() const override { return isCell() ? QStringList{pressAction()} : QStringList(); }
    void doAction(const QString& action) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    bool isCell() const { return m_row >= 0 && m_column >= 0; }
    QModelIndex index() const { return m_table.view()->model()->index(m_row, m_column); }
    QList<QAccessibleInterface*> header(int row, int column) const;
    QString headerName() const;
    QRect headerPlace() const;

    const ViewAccessible& m_table;
    int m_row;
    int m_column;
};

QString ItemAccessible::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Name && kind != QAccessible::Description) {
        return {};
    }
    if (!isCell()) {
        return kind == QAccessible::Name ? headerName() : QString();
    }
    if (kind == QAccessible::Description) {
        return index().data(Qt::AccessibleDescriptionRole).toString();
    }
    const QString name = index().data(Qt::AccessibleTextRole).toString();
    return name.isEmpty() ? index().data(Qt::DisplayRole).toString() : name;
}

QString ItemAccessible::headerName() const {
    if (m_row < 0 && m_column < 0) {
        return {};
    }
    const Qt::Orientation orientation = m_row < 0 ? Qt::Horizontal : Qt::Vertical;
    const int section = m_row < 0 ? m_column : m_row;
    const QAbstractItemModel& model = *m_table.view()->model();
    const QString name = model.headerData(section, orientation, Qt::AccessibleTextRole).toString();
    return name.isEmpty() ? model.headerData(section, orientation, Qt::DisplayRole).toString() : name;
}

QRect ItemAccessible::rect() const {
    const QWidget& viewport = *m_table.view()->viewport();
    if (isCell()) {
        const QRect place = m_table.view()->visualRect(index());
        return {viewport.mapToGlobal(place.topLeft()), place.size()};
    }
    return headerPlace();
}

QRect ItemAccessible::headerPlace() const {
    const QHeaderView* header = m_row < 0 ? m_table.columnHeader() : m_table.rowHeader();
    const int section = m_row < 0 ? m_column : m_row;
    if (header == nullptr || section < 0) {
        return {};
    }
    const int position = header->sectionViewportPosition(section);
    const int size = header->sectionSize(section);
    const QRect place =
        m_row < 0 ? QRect(position, 0, size, header->height()) : QRect(0, position, header->width(), size);
    return {header->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::Role ItemAccessible::role() const {
    return isCell()        ? QAccessible::ListItem
           : m_column >= 0 ? QAccessible::ColumnHeader
           : m_row >= 0    ? QAccessible::RowHeader
                           : QAccessible::Pane;
}

QAccessible::State ItemAccessible::state() const {
    const QAbstractItemView& view = *m_table.view();
    QAccessible::State state;
    state.invisible = !view.isVisible();
    const QRect inSight(view.mapToGlobal(QPoint()), view.size());
    state.offscreen = !inSight.intersects(rect());
    state.readOnly = true;
    if (isCell()) {
        state.focusable = true;
        state.focused = view.hasFocus() && view.currentIndex() == index();
        state.active = state.focused;
    }
    return state;
}

void* ItemAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface) {
        return static_cast<QAccessibleTableCellInterface*>(this);
    }
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QList<QAccessibleInterface*> ItemAccessible::header(int row, int column) const {
    QAccessibleInterface* header = isCell() ? m_table.item(row, column) : nullptr;
    return header == nullptr ? QList<QAccessibleInterface*>() : QList{header};
}

void ItemAccessible::doAction(const QString& action) {
    if (!isCell() || action != pressAction()) {
        return;
    }
    const bool wholeRow = m_table.view()->selectionBehavior() == QAbstractItemView::SelectRows;
    m_table.view()->selectionModel()->select(
        index(), QItemSelectionModel::ClearAndSelect |
                     (wholeRow ? QItemSelectionModel::Rows : QItemSelectionModel::NoUpdate));
}

ViewAccessible::ViewAccessible(QAbstractItemView* view) : QAccessibleWidget(view, QAccessible::LayeredPane) {}

ViewAccessible::~ViewAccessible() {
    forgetItems();
}

QAbstractItemView* ViewAccessible::view() const {
    return static_cast<QAbstractItemView*>(widget());
}

const QHeaderView* ViewAccessible::rowHeader() const {
    const auto* table = qobject_cast<QTableView*>(view());
    return table == nullptr ? nullptr : table->verticalHeader();
}

const QHeaderView* ViewAccessible::columnHeader() const {
    const auto* table = qobject_cast<QTableView*>(view());
    const auto* tree = qobject_cast<QTreeView*>(view());
    return table != nullptr ? table->horizontalHeader() : tree != nullptr ? tree->header() : nullptr;
}

void* ViewAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

int ViewAccessible::rowCount() const {
    return view()->model() == nullptr ? 0 : view()->model()->rowCount();
}

int ViewAccessible::columnCount() const {
    return view()->model() == nullptr ? 0 : view()->model()->columnCount();
}

// The numbers are those by which the toolkit's views speak of their items.

int ViewAccessible::childCount() const {
    return (rowCount() + 1) * perRow();
}

int ViewAccessible::itemNumber(int row, int column) const {
    return (row + 1) * perRow() + column + (rowHeader() != nullptr ? 1 : 0);
}

QAccessibleInterface* ViewAccessible::child(int number) const {
    if (number < 0 || number >= childCount()) {
        return nullptr;
    }
    if (const auto known = m_items.constFind(number); known != m_items.constEnd()) {
        return QAccessible::accessibleInterface(*known);
    }
    const int column = number % perRow() - (rowHeader() != nullptr ? 1 : 0);
    auto* item = new ItemAccessible(*this, number / perRow() - 1, column);
    m_items.insert(number, QAccessible::registerAccessibleInterface(item));
    return item;
}

QAccessibleInterface* ViewAccessible::item(int row, int column) const {
    const bool known = row >= -1 && row < rowCount() && column >= -1 && column < columnCount();
    const bool there = known && (column >= 0 || rowHeader() != nullptr);
    return there ? child(itemNumber(row, column)) : nullptr;
}

int ViewAccessible::indexOfChild(const QAccessibleInterface* item) const {
    const auto* own = dynamic_cast<const ItemAccessible*>(item);
    return own == nullptr ? -1 : own->number();
}

QAccessibleInterface* ViewAccessible::childAt(int x, int y) const {
    const QModelIndex index = view()->indexAt(view()->viewport()->mapFromGlobal(QPoint(x, y)));
    return index.isValid() ? item(index.row(), index.column()) : nullptr;
}

QAccessibleInterface* ViewAccessible::focusChild() const {
    const QModelIndex current = view()->currentIndex();
    return view()->hasFocus() && current.isValid() ? item(current.row(), current.column()) : nullptr;
}

QAccessibleInterface* ViewAccessible::cellAt(int row, int column) const {
    return row >= 0 && column >= 0 ? item(row, column) : nullptr;
}

QString ViewAccessible::columnDescription(int column) const {
    QAccessibleInterface* header = item(-1, column);
    return header == nullptr ? QString() : header->text(QAccessible::Name);
}

QString ViewAccessible::rowDescription(int row) const {
    QAccessibleInterface* header = item(row, -1);
    return header == nullptr ? QString() : header->text(QAccessible::Name);
}

void ViewAccessible::modelChange(QAccessibleTableModelChangeEvent* event) {
    if (event->modelChangeType() != QAccessibleTableModelChangeEvent::DataChanged) {
        forgetItems();
    }
}

void renewItems(QAbstractItemView& view) {
    QAccessibleTableModelChangeEvent others(&view, QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&others);
}

void ViewAccessible::forgetItems() {
    const QHash<int, QAccessible::Id> items = std::exchange(m_items, {});
    for (const QAccessible::Id item : items) {
        QAccessible::deleteAccessibleInterface(item);
    }
}

} // namespace planner
