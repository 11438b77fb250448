// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "sample_archive/office.h"

namespace planner {

/// The lines of `wrighipl`, by day and, within the day, by staff member and hour. A staff member's last line
/// of a day holds every kind of entry of that day, since that line gives the day its picture.
std::vector<RigaPlanner> creaRighe(const OpzioniCampione& opzioni, const Ufficio& ufficio);

} // namespace planner
