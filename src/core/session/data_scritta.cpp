// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/data_scritta.h"

#include "archive/fixed_text.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace planner {

namespace {

constexpr std::size_t DayOrMonthDigits = 2;
constexpr std::size_t YearDigits = 4;
constexpr int Century = 100;

/// At most one part more than a date has.
std::vector<std::string_view> partsOf(std::string_view text) {
    constexpr std::size_t most = 3;
    std::vector<std::string_view> parts;
    while (parts.size() <= most) {
        const std::size_t end = text.find_first_of("/.-");
        parts.push_back(trim(text.substr(0, end)));
        if (end == std::string_view::npos) {
            break;
        }
        text.remove_prefix(end + 1);
    }
    return parts;
}

/// The number of so many digits at most; 0, which is no part of a date, for any other text.
int numberIn(std::string_view text, std::size_t digits) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc{} && end == text.data() + text.size();
    return whole && text.size() <= digits ? std::max(number, 0) : 0;
}

int yearIn(std::string_view text, int shown) {
    const int number = numberIn(text, YearDigits);
    if (text.size() == YearDigits) {
        return number;
    }
    const bool twoDigits = text.size() == 2 && (number > 0 || text == "00");
    const int ahead = (number - shown % Century + Century + Century / 2) % Century - Century / 2;
    return twoDigits ? shown + ahead : 0;
}

} // namespace

std::optional<Data> dataScritta(std::string_view testo, Data mostrata) {
    const std::vector<std::string_view> parts = partsOf(testo);
    if (parts.size() > 3) {
        return std::nullopt;
    }
    return makeDate(parts.size() > 2 ? yearIn(parts[2], yearOf(mostrata)) : yearOf(mostrata),
                    parts.size() > 1 ? numberIn(parts[1], DayOrMonthDigits) : monthOf(mostrata),
                    numberIn(parts[0], DayOrMonthDigits));
}

} // namespace planner
