// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "grids/griglia.h"

#include <string>
#include <vector>

namespace planner::test {

/// Notes what a grid tells: "structure", or the cells from first to last row and column.
class RecordingObserver : public OsservatoreGriglia {
public:
    void strutturaCambiata() override { told.push_back("structure"); }
    void celleCambiate(const AreaCelle& area, bool misure) override {
        told.push_back(std::to_string(area.rigaMin) + "," + std::to_string(area.colonnaMin) + "-" +
                       std::to_string(area.rigaMax) + "," + std::to_string(area.colonnaMax) +
                       (misure ? " measures" : ""));
    }

    std::vector<std::string> told;
};

} // namespace planner::test
