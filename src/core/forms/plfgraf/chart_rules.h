// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace planner {

/// The hours that a record's text names: hours in the first five characters, minutes in the last two. Throws
/// OverflowError beyond a double.
double ConvertiOre(std::string_view testo);

/// The top of a value axis whose largest value is `massimo` hours: a tenth more, in whole hours. Throws
/// OverflowError beyond a double.
double massimoConMargine(double massimo);

/// The power of ten above `massimo` hours and a tenth more, in whole hours: 10, 100, 1,000 or 10,000. Throws
/// OverflowError when it would have to be greater.
std::int16_t ArrotondaMassimo(double massimo);

} // namespace planner
