// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/period_moves.h"

namespace planner {

namespace {

/// Months since year 0, so that months compare and add as numbers.
int monthNumber(Data data) {
    return yearOf(data) * 12 + monthOf(data) - 1;
}

Data withMonth(Data data, int month) {
    const std::chrono::year_month wanted{std::chrono::year{month / 12},
                                         std::chrono::month{static_cast<unsigned>(month % 12 + 1)}};
    const Data last{wanted / std::chrono::last};
    return data.day() > last.day() ? last : Data{wanted / data.day()};
}

/// Where a move from `from` to `to` ends between two bounds; nothing when it would not get on.
std::optional<int> bounded(int from, int to, int first, int last) {
    const int target = to < first ? first : to > last ? last : to;
    const bool forward = to > from;
    const bool getsOn = forward ? target > from : target < from;
    return getsOn && (target == to || from < first || from > last) ? std::optional(target) : std::nullopt;
}

int dayNumber(Data data) {
    return static_cast<int>(std::chrono::sys_days(data).time_since_epoch().count());
}

} // namespace

std::optional<Data> moveMonth(Data mostrata, int mesi, const PeriodoSessione& periodo) {
    const int from = monthNumber(mostrata);
    const auto target = bounded(from, from + mesi, monthNumber(periodo.inizio), monthNumber(periodo.fine));
    return target ? std::optional(withMonth(mostrata, *target)) : std::nullopt;
}

std::optional<Data> moveYear(Data mostrata, int anni, const PeriodoSessione& periodo) {
    const bool spansYears = periodo.fine.year() != periodo.inizio.year();
    return spansYears ? moveMonth(mostrata, anni * 12, periodo) : std::nullopt;
}

std::optional<Data> moveDay(Data mostrata, int giorni, const PeriodoSessione& periodo) {
    const int from = dayNumber(mostrata);
    const auto target = bounded(from, from + giorni, dayNumber(periodo.inizio), dayNumber(periodo.fine));
    return target ? std::optional<Data>(std::chrono::sys_days(std::chrono::days(*target))) : std::nullopt;
}

PeriodoSessione wholeMonths(const PeriodoSessione& periodo) {
    const auto& [inizio, fine] = periodo;
    return {{inizio.year(), inizio.month(), std::chrono::day{1}},
            fine.year() / fine.month() / std::chrono::last};
}

PeriodoSessione wholeYear(Data data) {
    return {data.year() / std::chrono::January / 1, data.year() / std::chrono::December / 31};
}

} // namespace planner
