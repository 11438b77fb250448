// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/grid_header.h"

#include "ui/kit/controls.h"
#include "ui/plcal/grid_model.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

#include <numeric>

namespace planner {

GridHeader::GridHeader(Qt::Orientation orientation, const GridModel& model, CellPainter& painter,
                       QWidget* parent)
    : QHeaderView(orientation, parent), m_model(model), m_painter(painter) {
    constexpr int smallestSection = 4;
    setMinimumSectionSize(smallestSection); // the toolkit's own minimum is wider than a day column may be
    setSectionResizeMode(QHeaderView::Fixed);
    setSectionsClickable(false);
    setHighlightSections(false);
    viewport()->setMouseTracking(true);
    // Where there are no sections it is as light as they are, on a dark desktop too.
    QPalette light = palette();
    light.setColor(QPalette::Button, qtColor(Colore::intestazione));
    light.setColor(QPalette::Window, qtColor(Colore::intestazione));
    setPalette(light);
}

void GridHeader::setThickness(const std::vector<int>& sizes) {
    if (sizes != m_sizes) {
        m_sizes = sizes;
        updateGeometry();
        viewport()->update();
    }
}

QSize GridHeader::sizeHint() const {
    const int thickness = std::accumulate(m_sizes.begin(), m_sizes.end(), 0);
    return orientation() == Qt::Horizontal ? QSize(0, thickness) : QSize(thickness, 0);
}

void GridHeader::mousePressEvent(QMouseEvent* event) {
    const int section = logicalIndexAt(event->position().toPoint());
    const bool right = event->button() == Qt::RightButton;
    if (section >= 0 && (right || event->button() == Qt::LeftButton)) {
        Q_EMIT pressed(section, right ? Mezzo::clicDestro : Mezzo::clic);
    }
}

void GridHeader::contextMenuEvent(QContextMenuEvent* event) {
    const bool onName = orientation() == Qt::Vertical && logicalIndexAt(event->pos()) >= 0;
    if (onName && event->reason() == QContextMenuEvent::Mouse) {
        Q_EMIT menuRequested(event->globalPos(), /*byKey=*/false);
    }
}

QString GridHeader::tipAt(const QPoint& position) const {
    const int section = logicalIndexAt(position);
    if (section < 0 || !m_tips) {
        return {};
    }
    return fromUtf8(m_tips(orientation() == Qt::Vertical ? Casella{m_model.gridRow(section), 0}
                                                         : Casella{0, GridModel::gridCol(section)}));
}

void GridHeader::point(const QString& tip) {
    if (tip != m_pointed) {
        m_pointed = tip;
        Q_EMIT pointed(tip);
    }
}

void GridHeader::mouseMoveEvent(QMouseEvent* event) {
    point(tipAt(event->position().toPoint()));
}

bool GridHeader::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        point({});
    }
    return changesActivation(*event) || // it looks the same
           showToolTip(*event, *viewport(), [this](QPoint position) { return toolTipAt(position); }) ||
           QHeaderView::viewportEvent(event);
}

QString GridHeader::toolTipAt(const QPoint& position) const {
    const int section = logicalIndexAt(position);
    QString tip = tipAt(position);
    if (!tip.isEmpty() || orientation() == Qt::Horizontal || section < 0) {
        return tip;
    }
    const QRect place(0, sectionViewportPosition(section), width(), sectionSize(section));
    const int row = m_model.gridRow(section);
    return m_painter.cut(place, m_model.griglia(), {row, 0})
               ? fromCp1252(m_model.griglia().TextMatrix(row, 0))
               : QString();
}

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
    painter->save();
    if (orientation() == Qt::Vertical) {
        m_painter.paint(*painter, rect, m_model.griglia(), {m_model.gridRow(logicalIndex), 0});
    } else {
        int top = rect.top();
        for (int row = 0; row < static_cast<int>(m_sizes.size()); ++row) {
            const int height = m_sizes[static_cast<std::size_t>(row)];
            m_painter.paint(*painter, QRect(rect.left(), top, rect.width(), height), m_model.griglia(),
                            {row, GridModel::gridCol(logicalIndex)});
            top += height;
        }
        CellPainter::paintSummary(*painter, rect, m_model.griglia(), GridModel::gridCol(logicalIndex));
    }
    painter->restore();
}

} // namespace planner
