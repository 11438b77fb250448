// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace planner {

using Data = std::chrono::year_month_day;

inline constexpr int AnnoMinimo = 1753;
inline constexpr int AnnoMassimo = 9999;

/// The day, or nothing when it is no day of the calendar or its year lies outside 1753..9999.
std::optional<Data> makeDate(int anno, int mese, int giorno);

/// The day that the three texts name, each a number with or without blanks around it. Throws DateError.
Data dateFromTexts(std::string_view giorno, std::string_view mese, std::string_view anno);

/// Reads yyyymmdd; nothing when the text is no such day.
std::optional<Data> parseDate(std::string_view yyyymmdd);

/// The day as yyyymmdd.
std::string formatDate(Data data);

/// The day as people write it: dd/mm/yyyy.
std::string dataBreve(Data data);

/// The number, not negative, in at least `width` digits, with leading zeros.
std::string padded(int number, std::size_t width);
std::string twoDigits(int number);

int yearOf(Data data);
/// 1 to 12.
int monthOf(Data data);
/// 1 to 31.
int dayOf(Data data);

/// 1 = Sunday ... 7 = Saturday.
int weekdayOf(Data data);

} // namespace planner
