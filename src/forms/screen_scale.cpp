// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/screen_scale.h"

#include <QScreen>

namespace planner {

Dimensioni roomOn(const QScreen& screen) {
    const QSize twips = screen.availableSize() * TwipsPerPixel;
    return {twips.width(), twips.height()};
}

double fontFactorFor(const QScreen& screen) {
    return static_cast<double>(scalaPer(roomOn(screen), ProgettoSchermo).ScalaMin());
}

} // namespace planner
