// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/fitted_label.h"

#include "ui/kit/controls.h"

#include <QPainter>

namespace planner {

FittedLabel::FittedLabel(QWidget* parent) : PlainLabel(parent), m_font(font()) {}

FittedText FittedLabel::fitted() const {
    return m_font.fit(text(), contentsRect().width());
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
        fitHeight();
    }
}

void FittedLabel::resizeEvent(QResizeEvent* event) {
    PlainLabel::resizeEvent(event);
    fitHeight();
}

void FittedLabel::fitHeight() {
    const QFont fitting = fontWithin(font(), contentsRect().height());
    if (fitting != m_font.font()) {
        m_font = FittingFont(fitting);
    }
}

void FittedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawFrame(&painter);
    const FittedText shown = fitted();
    painter.setFont(shown.font);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | static_cast<int>(Qt::TextSingleLine),
                     shown.shown);
}

} // namespace planner
