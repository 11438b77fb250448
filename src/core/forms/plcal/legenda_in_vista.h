// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "engine/controls.h"

#include <string>
#include <vector>

namespace planner {

/// What stands in sight beside the status line: the signs of the visible grid's cells, each with a word or
/// two. Empty without a visible grid.
std::vector<VoceLegenda> legendaInVista(const ControlliPlcal& controlli);

/// The same as a sentence, UTF-8: "note riservate, impegni vari"; empty without any.
std::string fraseLegenda(const std::vector<VoceLegenda>& voci);

} // namespace planner
