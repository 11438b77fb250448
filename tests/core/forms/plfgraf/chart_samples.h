// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/chart_layout.h"

#include <string>
#include <vector>

namespace planner::test {

/// A screen on which every character is seven pixels wide, and titles are larger.
ChartSize fixedMeasure(ChartTextRole role, const std::string& text);

/// One series with a row for each value, labelled from 1, on an axis up to `maximum` with a division per
/// hour.
Grafico oneSeries(const std::vector<double>& values, double maximum);
/// Twelve series of one value each, on an axis up to 100 in ten divisions.
Grafico twelveSeries(const std::vector<double>& values);
Grafico asPie(Grafico grafico);

inline constexpr ChartSize ScreenChart{1200, 650};
ChartLayout layoutOf(const Grafico& grafico, ChartSize size = ScreenChart, const ChartArea& reserved = {});

/// The texts of a role in their order.
std::vector<std::string> textsOf(const ChartLayout& layout, ChartTextRole role);
/// The texts that overlap another one, bars included for values; empty when all can be read.
std::vector<std::string> coveredTexts(const ChartLayout& layout);

} // namespace planner::test
