// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/dates.h"

#include "archive/cp1252.h"
#include "ports/runtime_errors.h"

#include <algorithm>

namespace planner {

namespace {

/// The whole number that the text is, blanks around it aside; -1, which is no part of a date, when it is
/// none.
int parseDigits(std::string_view text) {
    constexpr std::size_t maxDigits = 9;
    const std::size_t begin = std::min(text.find_first_not_of(' '), text.size());
    std::size_t end = begin;
    int number = 0;
    while (end < text.size() && text[end] >= '0' && text[end] <= '9' && end - begin < maxDigits) {
        number = number * 10 + (text[end++] - '0');
    }
    const bool complete = end > begin && text.find_first_not_of(' ', end) == std::string_view::npos;
    return complete ? number : -1;
}

} // namespace

std::optional<Data> makeDate(int anno, int mese, int giorno) {
    if (anno < AnnoMinimo || anno > AnnoMassimo || mese < 1 || giorno < 1) {
        return std::nullopt;
    }
    const Data data{std::chrono::year{anno}, std::chrono::month{static_cast<unsigned>(mese)},
                    std::chrono::day{static_cast<unsigned>(giorno)}};
    const bool fits = mese <= 12 && giorno <= 31 && data.ok();
    return fits ? std::optional(data) : std::nullopt;
}

Data dateFromTexts(std::string_view giorno, std::string_view mese, std::string_view anno) {
    const auto data = makeDate(parseDigits(anno), parseDigits(mese), parseDigits(giorno));
    if (!data) {
        std::string text;
        for (const std::string_view part : {giorno, mese, anno}) {
            text += text.empty() ? "" : "/";
            text += utf8FromCp1252(part);
        }
        throw DateError(text);
    }
    return *data;
}

std::optional<Data> parseDate(std::string_view yyyymmdd) {
    if (yyyymmdd.size() != 8 || yyyymmdd.find_first_not_of("0123456789") != std::string_view::npos) {
        return std::nullopt;
    }
    return makeDate(parseDigits(yyyymmdd.substr(0, 4)), parseDigits(yyyymmdd.substr(4, 2)),
                    parseDigits(yyyymmdd.substr(6, 2)));
}

std::string formatDate(Data data) {
    return padded(yearOf(data), 4) + padded(monthOf(data), 2) + padded(dayOf(data), 2);
}

std::string dataBreve(Data data) {
    return twoDigits(dayOf(data)) + "/" + twoDigits(monthOf(data)) + "/" + std::to_string(yearOf(data));
}

std::string padded(int number, std::size_t width) {
    std::string text = std::to_string(number);
    return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

std::string twoDigits(int number) {
    return padded(number, 2);
}

int yearOf(Data data) {
    return static_cast<int>(data.year());
}

int monthOf(Data data) {
    return static_cast<int>(static_cast<unsigned>(data.month()));
}

int dayOf(Data data) {
    return static_cast<int>(static_cast<unsigned>(data.day()));
}

int weekdayOf(Data data) {
    return static_cast<int>(std::chrono::weekday(std::chrono::sys_days(data)).c_encoding()) + 1;
}

} // namespace planner
