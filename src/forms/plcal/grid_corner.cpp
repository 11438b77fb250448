// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/grid_corner.h"

#include "platform/qt/text.h"

#include <QKeySequence>
#include <QPainter>
#include <QToolButton>

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
        button->setIconSize(QSize(place.Width, place.Height) - QSize(6, 6));
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

void GridCorner::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int row = 0; row < static_cast<int>(m_heights.size()); ++row) {
        const Rettangolo cell = cellOf(row);
        m_painter.paint(painter, QRect(cell.Left, cell.Top, cell.Width, cell.Height), m_griglia, row, 0);
    }
}

} // namespace planner
