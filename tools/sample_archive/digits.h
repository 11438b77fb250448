// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace planner {

inline constexpr int QuartoDora = 15; // minutes

/// The number, not negative, in at least `width` digits, with leading zeros.
inline std::string padded(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

/// A length of time as the archives hold it: hours, a colon, minutes; seven characters.
inline std::string lengthText(int minutes) {
    return padded(minutes / 60, 4) + ":" + padded(minutes % 60, 2);
}

} // namespace planner
