// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "forms/plfgraf/chart_layout.h"

namespace planner::test {

/// From this width on, in pixels, every text has its room.
inline constexpr double NarrowestChart = 300;

/// Values and texts that any chart has, however far it was filled. Throws PropertyBroken.
void requireSound(const Grafico& grafico);

/// What holds for a chart that was built, laid out in any size. Throws PropertyBroken.
void requireSoundLayout(const Grafico& grafico, ChartSize size, const ChartArea& reserved);

} // namespace planner::test
