// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace planner::e2e {

inline constexpr std::size_t RequestLength = 121;
inline constexpr std::string_view NoDay = "00000000";

/// The 121 bytes of a request for 15 March to 31 December 2006, with bytes of all sorts in what the planner
/// must give back untouched. `day` is the day to show, yyyymmdd.
std::string requestBytes(char tipoplanner, std::string_view day = NoDay);

/// The same request for the same days of another year, of four digits.
std::string inYear(std::string_view year, std::string request);

/// The bytes that answer a request with these eleven characters: the day, the staff code and the action
/// letter.
std::string answeredWith(std::string_view answer, std::string request);

/// The bytes that answer a request when the window is closed on the given day.
std::string closedOn(std::string_view day, std::string request);

/// The action letter of an answer.
char actionIn(std::string_view answer);

/// Every byte there is, once.
std::string everyByte();

/// Today in the planner's time zone, yyyymmdd.
std::string today();

} // namespace planner::e2e
