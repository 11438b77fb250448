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
    m_letters.reserve(5);
    m_letters.emplace_back(font);
    m_letters.emplace_back(shrunk(font, Shrinking));
    if (desktopFontFactor() > 1) {
        constexpr double smallestLegible = 7; // points
        constexpr int steps = 3;
        const double usual = Shrinking / desktopFontFactor();
        const double least = font.pointSizeF() > 0 ? smallestLegible / font.pointSizeF() : 0;
        const double last = std::min(std::max(usual, least), Shrinking);
        for (int step = 1; step <= steps; ++step) {
            m_letters.emplace_back(shrunk(font, Shrinking + (last - Shrinking) * step / steps));
        }
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

Letters::Known& Letters::known(const QString& text) const {
    constexpr qsizetype most = 4096; // an office's names and days; no more stay in memory
    const auto found = m_known.find(text);
    if (found != m_known.end()) {
        return *found;
    }
    if (m_known.size() >= most) {
        m_known.clear();
    }
    return *m_known.insert(text, {m_metrics.horizontalAdvance(text), {}});
}

void Letters::write(QPainter& painter, const QRect& place, const QString& text, bool centred) const {
    Known& written = known(text);
    if (written.shaped.text().isEmpty()) {
        QString line = text;
        written.shaped.setText(line.replace(QLatin1Char('\n'), QLatin1Char(' ')));
        written.shaped.setTextFormat(Qt::PlainText);
        written.shaped.prepare({}, m_font);
    }
    const double left = centred ? (place.width() - written.advance) / 2 : 0;
    const int top = qRound((place.height() - written.shaped.size().height()) / 2);
    painter.setFont(m_font);
    painter.drawStaticText(place.topLeft() + QPointF(left, top), written.shaped);
}

FittedText FittingFont::fit(const QString& text, int width) const {
    for (const Letters& letters : m_letters) {
        if (letters.width(text) <= width) {
            return {letters, text, false};
        }
    }
    const Letters& large = m_letters.at(1); // smaller ones would not save the whole
    return {large, large.metrics().elidedText(text, Qt::ElideRight, width), true};
}

} // namespace planner
