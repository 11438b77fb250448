// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/chart_rules.h"

#include "archive/fixed_text.h"
#include "archive/numeric_value.h"
#include "ports/runtime_errors.h"

#include <cmath>
#include <string>

namespace planner {

double ConvertiOre(std::string_view testo) {
    constexpr double minutesPerHour = 60;
    return numericValue(slice(testo, 0, 5)) + numericValue(lastChars(testo, 2)) / minutesPerHour;
}

double massimoConMargine(double massimo) {
    const double top = std::floor(massimo + massimo * 10 / 100);
    if (!std::isfinite(top)) {
        throw OverflowError();
    }
    return top;
}

std::int16_t ArrotondaMassimo(double massimo) {
    constexpr std::size_t mostDigits = 4; // of a power of ten in 16 bits, less its 1
    constexpr double beyondAllDigits = 100'000;
    if (!(std::abs(massimo) < beyondAllDigits)) {
        throw OverflowError();
    }
    const int whole = static_cast<int>(std::floor(massimo));
    const std::size_t digits = std::to_string(whole + whole * 10 / 100).size();
    if (digits > mostDigits) {
        throw OverflowError();
    }
    int scala = 1;
    for (std::size_t i = 0; i < digits; ++i) {
        scala *= 10;
    }
    return static_cast<std::int16_t>(scala);
}

} // namespace planner
