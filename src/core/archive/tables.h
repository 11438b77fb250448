// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/records.h"

#include <array>
#include <cstdint>
#include <vector>

namespace planner {

/// The archive tables in memory. Each open table holds elements 0 to its count, and the count is its upper
/// bound: the last element lies beyond the file's end and is blank, unless the file ends with part of a
/// record.
struct Archivi {
    std::vector<RigaPlanner> RighePlanner{1};
    std::int16_t NumRighe = 0;

    std::array<MesePlanner, 12> PlannerAnnuale; // index 0 = January

    std::vector<Collaboratore> Collaboratori{1};
    std::int16_t NumCollab = 0;

    std::vector<RigaGrafico> RigheGrafici{1};
    std::int16_t NumGrafici = 0;
};

} // namespace planner
