// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "planner_host/host_options.h"

#include <charconv>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

/// Readers of option values, which are UTF-8. Each throws HostError with exit code 1 for a value that will
/// not do.
namespace planner::option_values {

/// Throws: the value, and what it should have been.
[[noreturn]] void refuse(std::string_view valore, std::string_view expected);

/// The text as field bytes, at most `length` of them.
std::string fieldText(std::string_view valore, std::size_t length);

/// A text of one field byte.
char oneCharacter(std::string_view valore);

/// Eight digits; that they are a day of the calendar is for the planner to judge.
std::string dateText(std::string_view valore);

/// "M", "G" or "A".
char kind(std::string_view valore);

/// "evento" or "polling".
Modo mode(std::string_view valore);

/// A name that survives the planner's command line, which is cut at its blanks from the end.
std::string eventName(std::string_view valore);

/// A file's name without its folder.
std::string transitName(std::string_view valore);

/// A folder's path; the planner would take a "\" in it for a separator.
std::filesystem::path folder(std::string_view valore);

/// A whole number from `low` to `high`.
template <typename Number>
Number number(std::string_view valore, Number low, Number high) {
    Number result{};
    const auto [end, error] = std::from_chars(valore.data(), valore.data() + valore.size(), result);
    if (error != std::errc{} || end != valore.data() + valore.size() || result < low || result > high) {
        refuse(valore, "serve un numero da " + std::to_string(low) + " a " + std::to_string(high));
    }
    return result;
}

} // namespace planner::option_values
