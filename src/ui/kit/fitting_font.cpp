// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/fitting_font.h"

#include "ui/kit/appearance.h"

#include <algorithm>
#include <cmath>

namespace planner {

namespace {

QFont shrunk(QFont font, double factor) {
    if (font.pixelSize() > 0) {
        font.setPixelSize(qRound(font.pixelSize() * factor));
    } else {
        font.setPointSizeF(font.pointSizeF() * factor);
    }
    return font;
}

} // namespace

FittingFont::FittingFont(const QFont& font) {
    m_letters.reserve(3);
    m_letters.emplace_back(font);
    m_letters.emplace_back(shrunk(font, Shrinking));
    if (desktopFontFactor() > 1) {
        constexpr double smallestLegible = 7; // points
        const double usual = Shrinking / desktopFontFactor();
        const double least = font.pointSizeF() > 0 ? smallestLegible / font.pointSizeF() : 0;
        m_letters.emplace_back(shrunk(font, std::min(std::max(usual, least), Shrinking)));
    }
}

QFont fontWithin(const QFont& font, int height) {
    const auto line = [](const QFont& of) {
        const QFontMetricsF metrics(of);
        return std::ceil(metrics.ascent() + metrics.descent());
    };
    constexpr double step = 0.97; // letters have whole pixels
    QFont within = font;
    while (height > 0 && within.pointSizeF() > 1 && line(within) > height) {
        within.setPointSizeF(within.pointSizeF() * step);
    }
    return within;
}

FittedText FittingFont::fit(const QString& text, int width) const {
    for (const Letters& letters : m_letters) {
        if (letters.metrics.horizontalAdvance(text) <= width) {
            return {letters.font, text, false};
        }
    }
    const Letters& smallest = m_letters.back();
    return {smallest.font, smallest.metrics.elidedText(text, Qt::ElideRight, width), true};
}

} // namespace planner
