// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/grid_corner.h"

#include "ui/kit/text.h"

#include <QHelpEvent>
#include <QKeySequence>
#include <QPainter>
#include <QToolButton>
#include <QToolTip>

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

QString shortcutText(const PulsantePeriodo& described) {
    return QKeySequence::listToString(QKeySequence::listFromString(fromUtf8(described.scorciatoia)),
                                      QKeySequence::NativeText);
}

} // namespace

GridCorner::GridCorner(const Griglia& griglia, TipoPlanner tipo, CellPainter& painter, QWidget* parent)
    : QWidget(parent), m_griglia(griglia), m_painter(painter) {
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
    button->setToolTip(fromUtf8(described.suggerimento) + QStringLiteral(" (") + shortcutText(described) +
                       QLatin1Char(')'));
    button->setAccessibleName(fromUtf8(described.suggerimento));
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this,
            [this, &described] { Q_EMIT periodButtonClicked(described); });
    m_buttons.emplace_back(&described, button);
}

void GridCorner::setRowHeights(const std::vector<int>& heights) {
    m_heights = heights;
    update();
}

void GridCorner::placeButtons(float scalaX) {
    for (const auto& [described, button] : m_buttons) {
        const Rettangolo place = pulsantePeriodo(cellOf(described->riga), described->successivo, scalaX);
        button->setGeometry(place.Left, place.Top, place.Width, place.Height);
        button->setIconSize(QSize(place.Width, place.Height) - QSize(4, 4));
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

Rettangolo GridCorner::cellOf(int row) const {
    const auto index = static_cast<std::size_t>(row);
    if (index >= m_heights.size()) {
        return {}; // the header is not laid out yet
    }
    const int top = std::accumulate(m_heights.begin(), m_heights.begin() + row, 0);
    return {0, top, width(), m_heights[index]};
}

QRect GridCorner::placeOf(int row) const {
    const Rettangolo cell = cellOf(row);
    return {cell.Left, cell.Top, cell.Width, cell.Height};
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
        if (placeOf(row).contains(position) &&
            m_painter.cut(placeOf(row), m_griglia, row, 0, roomForButtons(row))) {
            return fromCp1252(m_griglia.TextMatrix(row, 0));
        }
    }
    return {};
}

bool GridCorner::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), plainToolTip(toolTipAt(help->pos())), this);
    return true;
}

void GridCorner::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int row = 0; row < static_cast<int>(m_heights.size()); ++row) {
        m_painter.paint(painter, placeOf(row), m_griglia, row, 0, roomForButtons(row));
    }
}

} // namespace planner
