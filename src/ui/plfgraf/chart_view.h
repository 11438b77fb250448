// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/plfgraf/chart_painter.h"

#include <QListView>
#include <QPixmap>

namespace planner {

/// A chart on the screen. Its values are the items of a list, so that mouse, keyboard and screen reader reach
/// each of them as in any other.
class ChartView : public QListView {
    Q_OBJECT
public:
    ChartView(const Grafico& grafico, double fontFactor, QWidget* parent);

    /// Keeps the chart's texts clear of an area, in the view's coordinates.
    void setReserved(const QRect& area);
    /// Shows the chart anew, its kind or contents having changed.
    void refresh();
    /// The chart with its heading, for files and paper; `size` in pixels of a 96 dpi screen.
    void paintChart(QPainter& painter, QSizeF size) const;
    const ChartLayout& chartLayout() const { return m_layout; }

    QRect visualRect(const QModelIndex& index) const override;
    QModelIndex indexAt(const QPoint& point) const override;
    void scrollTo(const QModelIndex&, ScrollHint) override {} // all is in sight
    void keyboardSearch(const QString&) override {}

Q_SIGNALS:
    /// The mouse or the keyboard is on another value; on none when the index is invalid.
    void valuePointed(const QModelIndex& index);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override { return 0; }
    int verticalOffset() const override { return 0; }
    bool isIndexHidden(const QModelIndex& index) const override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void doItemsLayout() override {}
    void updateGeometries() override {}

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void point();
    QModelIndex selectedValue() const;
    QModelIndex pointed() const;
    QModelIndex nextVisible(int row, int step) const;

    const Grafico& m_grafico;
    ChartPainter m_painter;
    QRect m_reserved;
    ChartLayout m_layout;
    QPixmap m_picture; // of the chart as laid out: what is pointed at changes far more often
    QPersistentModelIndex m_hovered;
};

} // namespace planner
