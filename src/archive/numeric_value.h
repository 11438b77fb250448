// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace planner {

/// The number that a text begins with: leading blanks are skipped, reading stops at the first character
/// that is not part of a number (sign, digits, decimal point, exponent); 0 when there is none.
/// Throws OverflowError when the number exceeds a double.
double numericValue(std::string_view text);

/// Rounds to the nearest whole number, ties to even. Throws OverflowError outside -32,768..32,767.
std::int16_t roundTo16Bit(double value);

/// The text as a 16-bit whole number. Throws TypeMismatchError when the text, blanks aside, is not
/// entirely a number, OverflowError when it does not fit.
std::int16_t wholeNumber(std::string_view text);

} // namespace planner
