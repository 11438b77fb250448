// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdint>
#include <string_view>

namespace planner {

/// What the two functions below do for everything but the most common content.
double anyNumericValue(std::string_view text);
std::int16_t roundFractionTo16Bit(double value);

/// The number that a text begins with: leading blanks are skipped, reading stops at the first character
/// that is not part of a number (sign, digits, decimal point, exponent); 0 when there is none.
/// Throws OverflowError when the number exceeds a double.
inline double numericValue(std::string_view text) {
    constexpr std::size_t maxLength = 9; // nine digits fit 32 bits
    std::size_t at = 0;
    while (at < text.size() && text[at] == ' ') {
        ++at;
    }
    std::int32_t sum = 0;
    while (at < text.size() && text[at] >= '0' && text[at] <= '9' && at < maxLength) {
        sum = sum * 10 + (text[at++] - '0');
    }
    return at == text.size() || text[at] == ' ' ? sum : anyNumericValue(text);
}

/// Rounds to the nearest whole number, ties to even. Throws OverflowError outside -32,768..32,767.
inline std::int16_t roundTo16Bit(double value) {
    if (std::abs(value) <= INT16_MAX) {
        const auto whole = static_cast<std::int16_t>(value);
        if (whole == value) {
            return whole; // most are, and need no rounding
        }
    }
    return roundFractionTo16Bit(value);
}

/// The text as a 16-bit whole number. Throws TypeMismatchError when the text, blanks aside, is not
/// entirely a number, OverflowError when it does not fit.
std::int16_t wholeNumber(std::string_view text);

} // namespace planner
