// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/fitted_label.h"

#include "ui/kit/controls.h"

#include <QPainter>

namespace planner {

FittedLabel::FittedLabel(QWidget* parent) : PlainLabel(parent) {}

const FittingFont& FittedLabel::fittingFont() const {
    if (!m_font) {
        QFont letters = fontWithin(font(), contentsRect().height());
        if (m_largest > 0 && letters.pointSizeF() > m_largest) {
            letters.setPointSizeF(m_largest);
        }
        m_font.emplace(letters);
    }
    return *m_font;
}

void FittedLabel::setLargestLetters(double points) {
    m_largest = points;
    m_font.reset();
    update();
}

FittedText FittedLabel::fitted() const {
    return fittingFont().fit(text(), contentsRect().width());
}

QSize FittedLabel::minimumSizeHint() const {
    return {0, PlainLabel::minimumSizeHint().height()};
}

bool FittedLabel::event(QEvent* event) {
    return showToolTip(*event, *this, [this](QPoint) { return fitted().cut ? text() : QString(); }) ||
           PlainLabel::event(event);
}

void FittedLabel::changeEvent(QEvent* event) {
    PlainLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_font.reset();
    }
}

void FittedLabel::resizeEvent(QResizeEvent* event) {
    PlainLabel::resizeEvent(event);
    m_font.reset();
}

void FittedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawFrame(&painter);
    const FittedText shown = fitted();
    painter.setFont(shown.font());
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | static_cast<int>(Qt::TextSingleLine),
                     shown.shown);
}

} // namespace planner
