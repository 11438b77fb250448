// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/plfgraf/chart_kind_frame.h"

#include <QPainter>
#include <QPalette>

namespace planner {

namespace {

const QColor LineColour(128, 128, 128);
constexpr double Corner = 3; // radius, pixels
constexpr int CaptionLeft = 12;
constexpr int CaptionTop = 4;

QPalette paperPalette() {
    QPalette paper(QColor(240, 240, 240), Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        paper.setColor(role, Qt::black);
    }
    return paper;
}

} // namespace

ChartKindFrame::ChartKindFrame(const QString& caption, QWidget* parent) : QGroupBox(caption, parent) {
    setPalette(paperPalette());
}

void ChartKindFrame::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(QPen(LineColour, 1));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Corner, Corner);
    painter.setPen(Qt::black);
    painter.drawText(rect().adjusted(CaptionLeft, CaptionTop, -CaptionLeft, 0),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, title());
}

} // namespace planner
