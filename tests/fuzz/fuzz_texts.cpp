// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/cp1252.h"
#include "archive/fixed_text.h"
#include "archive/numeric_value.h"
#include "forms/plfgraf/chart_rules.h"
#include "forms/plfgraf/chart_texts.h"
#include "fuzz/fuzz_input.h"
#include "ports/runtime_errors.h"
#include "sample_archive/cp1252_from_utf8.h"
#include "session/calendar_rules.h"

#include <cmath>
#include <optional>

namespace planner::test {
namespace {

/// What the function gives, or nothing when it ends in one of the errors; any other comes out.
template <typename... Errors, typename Function>
auto resultOf(Function function) -> std::optional<decltype(function())> {
    try {
        return function();
    } catch (const RuntimeError& error) {
        const bool expected = (... || (dynamic_cast<const Errors*>(&error) != nullptr));
        require(expected, error.what());
        return std::nullopt;
    }
}

void requireSoundNumbers(const std::string& text) {
    const auto value = resultOf<OverflowError>([&] { return numericValue(text); });
    require(!value || std::isfinite(*value), "a text's value is a number");
    const auto whole = resultOf<OverflowError, TypeMismatchError>([&] { return wholeNumber(text); });
    require(!whole || (value && std::abs(*whole - *value) <= 0.5),
            "a whole number is its text's value, rounded");
    require(!value || resultOf<OverflowError>([&] { return numericValue(" " + text); }) == value,
            "a leading blank changes nothing");
}

void requireSoundLengths(const std::string& text) {
    resultOf<OverflowError>([&] { return ConvertiDurata(text); });
    const auto hours = resultOf<OverflowError>([&] { return ConvertiOre(text); });
    if (hours) {
        require(std::isfinite(*hours), "hours are a number");
        require(cp1252FromUtf8(testoOre(*hours)).has_value(), "hours have a text");
    }
}

void requireSoundDates(const std::string& text) {
    const auto whole = parseDate(text);
    require(!whole || formatDate(*whole) == text, "a day is written as it is read");
    const auto parts = resultOf<DateError>(
        [&] { return dateFromTexts(slice(text, 6, 2), slice(text, 4, 2), slice(text, 0, 4)); });
    require(!whole || parts == whole, "a day's parts name the same day");
    require(!parts || parseDate(formatDate(*parts)) == parts, "a day is read as it is written");
}

void requireTextsComeBack(const std::string& bytes) {
    require(cp1252FromUtf8(utf8FromCp1252(bytes)) == bytes, "every byte comes back from UTF-8");
    const auto fromUtf8 = cp1252FromUtf8(bytes);
    require(!fromUtf8 || utf8FromCp1252(*fromUtf8) == bytes, "UTF-8 that is taken comes back the same");
}

void fuzzTexts(const std::string& text) {
    requireSoundNumbers(text);
    requireSoundLengths(text);
    requireSoundDates(text);
    requireTextsComeBack(text);
}

} // namespace
} // namespace planner::test

/// The text as it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    planner::test::fuzzTexts(planner::test::FuzzInput(data, size).rest());
    return 0;
}
