// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plcal/legend_bar.h"

#include "forms/plcal/legenda_in_vista.h"
#include "ui/kit/appearance.h"
#include "ui/kit/controls.h"
#include "ui/kit/fitting_font.h"

#include <QPainter>

#include <algorithm>
#include <numeric>

namespace planner {

namespace {

constexpr int Gap = 4; // pixels: around a sign, and between it and its word
constexpr int EntryGap = 12;

} // namespace

LegendBar::LegendBar(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("legenda"));
    setAccessibleName(QStringLiteral("Legenda"));
}

void LegendBar::setEntries(const std::vector<VoceLegenda>& voci) {
    if (voci == m_voci) {
        return;
    }
    m_voci = voci;
    m_widths.reset();
    const QString sentence = fromUtf8(fraseLegenda(voci));
    if (sentence != accessibleDescription()) {
        setAccessibleDescription(sentence);
    }
    update();
}

int LegendBar::side() const {
    return std::max(height() - 2, 1);
}

QFont LegendBar::letters() const {
    return fontWithin(font(), height());
}

int LegendBar::entryWidth(const VoceLegenda& voce, bool words, const QFontMetrics& letters) const {
    return side() + (words ? Gap + letters.horizontalAdvance(fromUtf8(voce.breve)) + EntryGap : Gap);
}

const LegendBar::Widths& LegendBar::widths() const {
    if (!m_widths || m_widths->height != height()) { // the letters follow it
        const QFontMetrics metrics(letters());
        const auto widthOf = [&](bool words) {
            return std::accumulate(m_voci.begin(), m_voci.end(), 0, [&](int sum, const VoceLegenda& voce) {
                return sum + entryWidth(voce, words, metrics);
            });
        };
        m_widths = {height(), widthOf(true), widthOf(false)};
    }
    return *m_widths;
}

QString LegendBar::toolTipAt(const QPoint& position) const {
    const QFontMetrics metrics(letters());
    const bool words = showsWords();
    int left = 0;
    for (const VoceLegenda& voce : m_voci) {
        left += entryWidth(voce, words, metrics);
        if (position.x() < left) {
            return fromUtf8(voce.significato);
        }
    }
    return {};
}

void LegendBar::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_widths.reset();
    }
}

bool LegendBar::event(QEvent* event) {
    return showToolTip(*event, *this, [this](QPoint position) { return toolTipAt(position); }) ||
           QWidget::event(event);
}

/// The signs are drawn for light cells, so they stand on one here too.
void LegendBar::paintSign(QPainter& painter, const QRect& square, const VoceLegenda& voce) {
    const bool marked = voce.immagine == VoceLegenda::GiornoSegnato;
    painter.fillRect(square, qtColor(Colore::lineaForte));
    const QRect ground = square.adjusted(1, 1, -1, -1);
    painter.fillRect(ground, qtColor(marked ? Colore::navy : Colore::gialloChiaro));
    const QPixmap& sign =
        m_pictures.line(voce.immagine, ground.adjusted(1, 1, -1, -1).size(), devicePixelRatioF());
    painter.drawPixmap(ground.topLeft() + QPoint(1, 1), sign);
}

void LegendBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(letters());
    painter.setPen(palette().color(foregroundRole()));
    const bool words = showsWords();
    int left = 0;
    for (const VoceLegenda& voce : m_voci) {
        const QRect square(left, (height() - side()) / 2, side(), side());
        paintSign(painter, square, voce);
        if (words) {
            painter.drawText(QRect(square.right() + 1 + Gap, 0, width(), height()),
                             static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine),
                             fromUtf8(voce.breve));
        }
        left += entryWidth(voce, words, painter.fontMetrics());
    }
}

} // namespace planner
