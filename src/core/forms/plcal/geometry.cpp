// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/geometry.h"

#include <algorithm>
#include <cmath>

namespace planner {

namespace {

int scaled(int twips, float factor) {
    return static_cast<int>(std::lround(static_cast<double>(twips) * static_cast<double>(factor)));
}

} // namespace

std::vector<ControlloProgetto> Ctr_Refresh(std::vector<ControlloProgetto> controlli, const Scala& scala) {
    for (ControlloProgetto& controllo : controlli) {
        if (controllo.pulsanteComando) {
            continue;
        }
        Rettangolo& r = controllo.posizione;
        r = {scaled(r.Left, scala.ScalaX), scaled(r.Top, scala.ScalaY), scaled(r.Width, scala.ScalaX),
             scaled(r.Height, scala.ScalaY)};
    }
    return controlli;
}

int pixels(int twips, float scala) {
    return scaled(twips, scala / static_cast<float>(TwipsPerPixel));
}

Rettangolo pixels(const Rettangolo& twips, const Scala& scala) {
    const int left = pixels(twips.Left, scala.ScalaX);
    const int top = pixels(twips.Top, scala.ScalaY);
    return {left, top, pixels(twips.Left + twips.Width, scala.ScalaX) - left,
            pixels(twips.Top + twips.Height, scala.ScalaY) - top};
}

std::vector<int> pixelSizes(const std::vector<int>& twips, float scala) {
    std::vector<int> sizes;
    sizes.reserve(twips.size());
    int total = 0;
    int boundary = 0;
    for (const int size : twips) {
        total += size;
        const int next = pixels(total, scala);
        sizes.push_back(next - boundary);
        boundary = next;
    }
    return sizes;
}

Rettangolo pulsantePeriodo(const Rettangolo& cella, bool successivo, float scalaX) {
    constexpr int marginTwips = 100;
    constexpr int widthTwips = 300;
    constexpr int minHeight = 16;
    const int height =
        std::clamp(cella.Height / 2, std::min(minHeight, cella.Height), std::max(cella.Height, 0));
    const int margin = pixels(marginTwips, scalaX);
    const int width = std::min(pixels(widthTwips, scalaX), cella.Width / 2);
    const int left = successivo ? cella.Left + cella.Width - width - margin / 2 : cella.Left + margin;
    return {left, cella.Top + (cella.Height - height) / 2, width, height};
}

} // namespace planner
