// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/grid_corner.h"

#include "engine/kinds/kind.h"
#include "forms/plcal/design.h"
#include "ui/kit/controls.h"
#include "ui/kit/drawn_icon.h"
#include "ui/plcal/cell_painter.h"

#include <QPainter>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>
#include <numeric>

namespace planner {

namespace {

/// The header cells are light whatever the desktop's theme, so their buttons are too.
QPalette lightButtonPalette() {
    QPalette palette(QColor(240, 240, 240));
    palette.setColor(QPalette::ButtonText, Qt::black);
    return palette;
}

} // namespace

GridCorner::GridCorner(const Griglia& griglia, TipoPlanner tipo, CellPainter& painter, QWidget* parent)
    : QWidget(parent), m_griglia(griglia), m_painter(painter) {
    setAttribute(Qt::WA_OpaquePaintEvent); // its cells cover it
    for (const PulsantePeriodo& described : PulsantiPeriodo) {
        if (described.tipo == tipo) {
            addButton(described);
        }
    }
}

void GridCorner::addButton(const PulsantePeriodo& described) {
    auto* button = new QToolButton(this);
    button->setObjectName(fromUtf8(described.gruppo) + QString::number(described.indice));
    button->setIcon(qtIcon(described.immagine));
    button->setPalette(lightButtonPalette());
    const QString caption = fromUtf8(described.suggerimento);
    const QList<QKeySequence> keys = qtKeys(described.scorciatoia);
    button->setToolTip(captionWithKeys(caption, keys));
    nameButton(*button, caption, keys);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this,
            [this, &described] { Q_EMIT periodButtonClicked(described); });
    addKeys(described, *button);
    m_buttons.emplace_back(&described, button);
}

void GridCorner::addKeys(const PulsantePeriodo& described, QToolButton& button) {
    for (const QKeySequence& keys : qtKeys(described.scorciatoia)) {
        auto* shortcut = new QShortcut(keys, this);
        // In the yearly planner they answer the host: a held key is not to reach the next request.
        shortcut->setAutoRepeat(regole(described.tipo).perCollaboratore);
        connect(shortcut, &QShortcut::activated, &button, &QToolButton::click);
    }
}

void GridCorner::setRowHeights(const std::vector<int>& heights) {
    if (heights != m_heights) {
        m_heights = heights;
        update();
    }
}

void GridCorner::updateCells() {
    update(QRegion(rect()) - childrenRegion());
}

void GridCorner::setPeriod(const QString& period) {
    if (period != accessibleName()) {
        setAccessibleName(period);
    }
}

void GridCorner::placeButtons(float scalaX) {
    for (const auto& [described, button] : m_buttons) {
        const QRect cell = cellOf(described->riga);
        const Rettangolo place =
            pulsantePeriodo({cell.x(), cell.y(), cell.width(), cell.height()}, described->successivo, scalaX);
        button->setGeometry(qtRect(place));
        button->setIconSize(button->size() - QSize(4, 4));
    }
}

void GridCorner::updateButtons(const std::function<bool(const PulsantePeriodo&)>& active,
                               QWidget& successor) {
    for (const auto& [described, button] : m_buttons) {
        const bool usable = active(*described);
        if (!usable && window()->focusWidget() == button) {
            successor.setFocus(); // the toolkit would pass it to another command
        }
        button->setEnabled(usable);
    }
}

QRect GridCorner::cellOf(int row) const {
    const auto index = static_cast<std::size_t>(row);
    if (index >= m_heights.size()) {
        return {}; // the header is not laid out yet
    }
    const int top = std::accumulate(m_heights.begin(), m_heights.begin() + row, 0);
    return {0, top, width(), m_heights[index]};
}

int GridCorner::roomForButtons(int row) const {
    int room = 0;
    for (const auto& [described, button] : m_buttons) {
        if (described->riga == row) {
            room = std::max(room,
                            described->successivo ? width() - button->x() : button->geometry().right() + 1);
        }
    }
    return room;
}

QString GridCorner::toolTipAt(const QPoint& position) const {
    for (int row = 0; row < static_cast<int>(m_heights.size()); ++row) {
        if (cellOf(row).contains(position) &&
            m_painter.cut(cellOf(row), m_griglia, {row, 0}, roomForButtons(row))) {
            return fromCp1252(m_griglia.TextMatrix(row, 0));
        }
    }
    return accessibleName();
}

bool GridCorner::event(QEvent* event) {
    return showToolTip(*event, *this, [this](QPoint position) { return toolTipAt(position); }) ||
           QWidget::event(event);
}

void GridCorner::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int row = 0; row < static_cast<int>(m_heights.size()); ++row) {
        m_painter.paint(painter, cellOf(row), m_griglia, {row, 0}, roomForButtons(row));
    }
}

} // namespace planner
