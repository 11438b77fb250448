// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/records.h"

#include <string_view>
#include <vector>

namespace planner {

/// A code that no staff member of the sample ever has.
inline constexpr std::string_view CodiceSconosciuto = "ZZ";

/// `count` staff members (at most CollaboratoriMassimi) with different names and codes. The code is made of
/// the initials of surname and first name where these are free.
std::vector<Collaboratore> creaCollaboratori(int count);

} // namespace planner
