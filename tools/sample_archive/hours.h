// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_archive/office.h"

namespace planner {

/// The hours worked of `wgrafici`, by day and staff member; no record for a day off. An office with more days
/// of work than the file may have records gets fewer of them, spread evenly over year and staff.
std::vector<RigaGrafico> creaGrafici(const OpzioniCampione& opzioni, const Ufficio& ufficio);

} // namespace planner
