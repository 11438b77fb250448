// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/legible.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace planner {

namespace {

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor& from, const QColor& to, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

/// The first colour on the way from `colour` to `end` that has the contrast to each of the grounds.
QColor standingOut(const QColor& colour, const QColor& end, std::initializer_list<QColor> grounds,
                   double contrast) {
    constexpr int steps = 32;
    for (int step = 0; step < steps; ++step) {
        const QColor tried = mixed(colour, end, static_cast<double>(step) / steps);
        if (std::all_of(grounds.begin(), grounds.end(),
                        [&](const QColor& ground) { return contrastOf(tried, ground) >= contrast; })) {
            return tried;
        }
    }
    return end;
}

struct TextRoles {
    QPalette::ColorRole ink, ground;
};
constexpr std::array Texts{TextRoles{QPalette::WindowText, QPalette::Window},
                           TextRoles{QPalette::ButtonText, QPalette::Button},
                           TextRoles{QPalette::Text, QPalette::Base}};

void deepenChosen(QPalette& palette, QPalette::ColorGroup group) {
    const QColor text = palette.color(group, QPalette::HighlightedText);
    const QColor ground = palette.color(group, QPalette::Highlight);
    const QColor end = luminance(text) > luminance(ground) ? Qt::black : Qt::white;
    palette.setColor(group, QPalette::Highlight, standingOut(ground, end, {text}, TextContrast));
}

void strengthenInvitation(QPalette& palette, QPalette::ColorGroup group) {
    const QColor ground = palette.color(group, QPalette::Base);
    palette.setColor(group, QPalette::PlaceholderText,
                     standingOut(ground, palette.color(group, QPalette::Text), {ground}, TextContrast));
}

QColor lineFrom(const QPalette& palette, QPalette::ColorRole start) {
    return standingOut(palette.color(start), palette.color(QPalette::WindowText),
                       {palette.color(QPalette::Window), palette.color(QPalette::Base)}, EdgeContrast);
}

} // namespace

double contrastOf(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

void makeLegible(QPalette& palette) {
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        deepenChosen(palette, group);
        strengthenInvitation(palette, group);
    }
    for (const TextRoles& text : Texts) {
        palette.setColor(QPalette::Disabled, text.ink,
                         standingOut(palette.color(QPalette::Disabled, text.ink),
                                     palette.color(QPalette::Active, text.ink),
                                     {palette.color(QPalette::Disabled, text.ground)}, EdgeContrast));
    }
}

QColor edgeColor(const QPalette& palette) {
    return lineFrom(palette, QPalette::Window);
}

QColor focusColor(const QPalette& palette) {
    return lineFrom(palette, QPalette::Highlight);
}

} // namespace planner
