// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfgraf/chart_view.h"

#include "ui/plfgraf/chart_model.h"
#include "ui/plfgraf/chart_shapes.h"

#include <QAccessible>
#include <QAction>
#include <QMouseEvent>
#include <QPainter>

namespace planner {

ChartView::ChartView(const Grafico& grafico, double fontFactor, QWidget* parent)
    : QListView(parent), m_grafico(grafico), m_painter(grafico, fontFactor) {
    setModel(new ChartModel(grafico, this));
    setFrameShape(QFrame::NoFrame);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setMouseTracking(true);
}

void ChartView::setReserved(const QRect& area) {
    m_reserved = area;
    refresh();
}

void ChartView::refresh() {
    const QSizeF size = viewport()->size();
    const QRectF reserved = m_reserved;
    m_layout =
        layoutChart(m_grafico, {size.width(), size.height()},
                    {reserved.x(), reserved.y(), reserved.width(), reserved.height()}, m_painter.measure());
    m_picture = QPixmap();
    m_hovered = QModelIndex();
    point();
}

void ChartView::paintChart(QPainter& painter, QSizeF size) const {
    const ChartSize whole{size.width(), size.height()};
    m_painter.paint(painter, layoutSheet(m_grafico, whole, m_painter.measure()));
}

QRect ChartView::visualRect(const QModelIndex& index) const {
    if (!index.isValid()) {
        return {};
    }
    return rectOf(areaOf(m_layout, static_cast<std::size_t>(index.row()))).toAlignedRect();
}

QModelIndex ChartView::indexAt(const QPoint& point) const {
    const QPointF place = point;
    const auto number = valueAt(m_layout, {place.x(), place.y()});
    return number ? model()->index(static_cast<int>(*number), 0) : QModelIndex();
}

bool ChartView::isIndexHidden(const QModelIndex& index) const {
    return areaOf(m_layout, static_cast<std::size_t>(index.row())).empty();
}

QModelIndex ChartView::nextVisible(int row, int step) const {
    for (int next = row + step; next >= 0 && next < model()->rowCount(); next += step) {
        const QModelIndex index = model()->index(next, 0);
        if (!isIndexHidden(index)) {
            return index;
        }
    }
    return selectedValue();
}

QModelIndex ChartView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    const int row = selectedValue().row(); // -1 for none
    const int count = model()->rowCount();
    switch (action) {
    case MoveLeft:
    case MoveUp:
    case MovePrevious:
        return nextVisible(row, -1);
    case MoveHome:
    case MovePageUp:
        return nextVisible(-1, 1);
    case MoveEnd:
    case MovePageDown:
        return nextVisible(count, -1);
    case MoveRight:
    case MoveDown:
    case MoveNext:
        return nextVisible(row, 1);
    }
    return currentIndex();
}

void ChartView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags) {
    const QModelIndex index = indexAt(rect.center());
    selectionModel()->select(index, flags);
}

QRegion ChartView::visualRegionForSelection(const QItemSelection& selection) const {
    QRegion region;
    for (const QModelIndex& index : selection.indexes()) {
        region += visualRect(index);
    }
    return region;
}

void ChartView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // The list's own would look the value up in its layout, of which there is none, and announce the list.
    QAbstractItemView::currentChanged(current, previous); // NOLINT(bugprone-parent-virtual-call)
    if (current.isValid() && hasFocus()) {
        QAccessibleEvent event(this, QAccessible::Focus);
        event.setChild(current.row());
        QAccessible::updateAccessibility(&event);
    }
}

void ChartView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    point();
}

QModelIndex ChartView::selectedValue() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? QModelIndex() : selected.front();
}

/// The value under the mouse, else the one that the keyboard or a click has chosen.
QModelIndex ChartView::pointed() const {
    return m_hovered.isValid() ? QModelIndex(m_hovered) : selectedValue();
}

void ChartView::point() {
    viewport()->update();
    Q_EMIT valuePointed(pointed());
}

void ChartView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    if (m_picture.isNull()) {
        m_picture = QPixmap(viewport()->size() * devicePixelRatioF());
        m_picture.setDevicePixelRatio(devicePixelRatioF());
        QPainter picture(&m_picture);
        m_painter.paint(picture, m_layout);
    }
    painter.drawPixmap(0, 0, m_picture);
    if (const QModelIndex current = pointed(); current.isValid()) {
        ChartPainter::pointOut(painter, m_layout, static_cast<std::size_t>(current.row()));
    }
}

void ChartView::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    refresh();
}

void ChartView::keyPressEvent(QKeyEvent* event) {
    // A list has its own idea of what Ctrl+C copies.
    for (QAction* action : actions()) {
        if (action->shortcut() == QKeySequence(event->keyCombination())) {
            action->trigger();
            return;
        }
    }
    QListView::keyPressEvent(event);
}

void ChartView::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    if (!selectedValue().isValid()) {
        // The first value became the current one, unseen: the first key is to show it and have it read.
        selectionModel()->clearCurrentIndex();
    }
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
    QListView::mouseMoveEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index != m_hovered) {
        m_hovered = index;
        point();
    }
}

void ChartView::leaveEvent(QEvent* event) {
    QListView::leaveEvent(event);
    m_hovered = QModelIndex();
    point();
}

} // namespace planner
