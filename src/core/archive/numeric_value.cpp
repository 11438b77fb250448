// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/numeric_value.h"

#include "archive/fixed_text.h"
#include "ports/runtime_errors.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace planner {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

struct Parsed {
    double value = 0;
    std::size_t length = 0; // characters of the text that belong to the number
};

/// Reads an unsigned number that begins at the text's first character.
Parsed parseUnsigned(std::string_view text) {
    const bool begins =
        !text.empty() && (isDigit(text[0]) || (text[0] == '.' && text.size() > 1 && isDigit(text[1])));
    if (!begins) {
        return {}; // keeps "inf" and "nan", which the library would read, from being numbers
    }
    Parsed parsed;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed.value);
    if (error == std::errc::result_out_of_range) {
        throw OverflowError();
    }
    parsed.length = static_cast<std::size_t>(end - text.data());
    return parsed;
}

Parsed parseSigned(std::string_view text) {
    const bool hasSign = !text.empty() && (text[0] == '-' || text[0] == '+');
    Parsed parsed = parseUnsigned(hasSign ? text.substr(1) : text);
    if (hasSign && parsed.length > 0) {
        ++parsed.length;
        parsed.value = text[0] == '-' ? -parsed.value : parsed.value;
    }
    return parsed;
}

} // namespace

double anyNumericValue(std::string_view text) {
    return parseSigned(trim(text)).value;
}

std::int16_t roundFractionTo16Bit(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= INT16_MIN && rounded <= INT16_MAX)) {
        throw OverflowError();
    }
    return static_cast<std::int16_t>(rounded);
}

std::int16_t wholeNumber(std::string_view text) {
    const std::string_view trimmed = trim(text);
    const Parsed parsed = parseSigned(trimmed);
    if (parsed.length == 0 || parsed.length != trimmed.size()) {
        throw TypeMismatchError();
    }
    return roundTo16Bit(parsed.value);
}

} // namespace planner
