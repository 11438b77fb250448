// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "session/dates.h"

namespace planner {

inline constexpr int QuartoDora = 15; // minutes

/// A length of time as the archives hold it: hours, a colon, minutes; seven characters.
inline std::string lengthText(int minutes) {
    return padded(minutes / 60, 4) + ":" + padded(minutes % 60, 2);
}

} // namespace planner
