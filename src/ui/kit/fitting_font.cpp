// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/fitting_font.h"

namespace planner {

namespace {

QFont shrunk(QFont font) {
    if (font.pixelSize() > 0) {
        font.setPixelSize(qRound(font.pixelSize() * FittingFont::Shrinking));
    } else {
        font.setPointSizeF(font.pointSizeF() * FittingFont::Shrinking);
    }
    return font;
}

} // namespace

FittingFont::FittingFont(const QFont& font)
    : m_font(font), m_smaller(shrunk(font)), m_metrics(m_font), m_smallerMetrics(m_smaller) {}

FittedText FittingFont::fit(const QString& text, int width) const {
    if (m_metrics.horizontalAdvance(text) <= width) {
        return {m_font, text, false};
    }
    if (m_smallerMetrics.horizontalAdvance(text) <= width) {
        return {m_smaller, text, false};
    }
    return {m_smaller, m_smallerMetrics.elidedText(text, Qt::ElideRight, width), true};
}

} // namespace planner
