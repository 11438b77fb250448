// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ui/kit/screen_scale.h"

#include "ui/kit/appearance.h"

#include <QApplication>
#include <QScreen>

#include <algorithm>

namespace planner {

namespace {

constexpr double SmallestFontFactor = 5.0 / 6; // ordinary letters of 7.5 points

} // namespace

Dimensioni roomOn(const QScreen& screen) {
    const QSize twips = screen.availableSize() * TwipsPerPixel;
    return {twips.width(), twips.height()};
}

double fontFactorFor(const Scala& scala) {
    const double desktop = desktopFontFactor();
    const double smallest = desktop > 1 ? desktop : SmallestFontFactor;
    return std::max(static_cast<double>(scala.ScalaMin()), smallest);
}

double fontFactorFor(const QScreen& screen) {
    return fontFactorFor(scalaPer(roomOn(screen), ProgettoSchermo));
}

void fitFontsTo(const QScreen& screen) {
    QApplication::setFont(qtFont(Carattere::normale, fontFactorFor(screen)));
}

} // namespace planner
