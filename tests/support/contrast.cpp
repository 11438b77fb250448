// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/contrast.h"

#include <algorithm>
#include <cmath>

namespace planner::test {

namespace {

/// The light of a channel, 0 to 1.
double light(std::uint8_t channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(Rgb colour, const Vista& vista) {
    const std::array sent{light(colour.red), light(colour.green), light(colour.blue)};
    constexpr std::array weights{0.2126, 0.7152, 0.0722};
    double sum = 0;
    for (std::size_t channel = 0; channel < weights.size(); ++channel) {
        const auto& row = vista.matrice.at(channel);
        const double seen = row[0] * sent[0] + row[1] * sent[1] + row[2] * sent[2];
        sum += weights.at(channel) * std::clamp(seen, 0.0, 1.0);
    }
    return sum;
}

} // namespace

double contrasto(Rgb a, Rgb b, const Vista& vista) {
    constexpr double glare = 0.05;
    const auto [dark, bright] = std::minmax(luminance(a, vista), luminance(b, vista));
    return (bright + glare) / (dark + glare);
}

} // namespace planner::test
