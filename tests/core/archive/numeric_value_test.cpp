// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/numeric_value.h"
#include "ports/runtime_errors.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace planner::test {
namespace {

using namespace std::string_view_literals;

TEST(NumericValueTest, ReadsTheNumberThatATextBeginsWith) {
    const std::vector<std::pair<std::string_view, double>> table{
        {"0", 0},
        {"7", 7},
        {"00012", 12},
        {"12.50", 12.5},
        {"   7", 7},
        {"7   ", 7},
        {"-3", -3},
        {"+3", 3},
        {"  -3 ", -3},
        {"-0003", -3},
        {".5", 0.5},
        {"-.5", -0.5},
        {"5.", 5},
        {"1.5.2", 1.5},
        {"12a", 12},
        {"1e2", 100},
        {"1e9", 1e9},
        {"1E9", 1e9},
        {"1e", 1},
        {"1e+", 1},
        {"2.5e-1", 0.25},
        {"01:30", 1},
        {"1 2", 1},
        {"1,5", 1},
        {"1.000,5", 1},
        {"0x10", 0},
        {"123456789", 1.23456789e8},
        {"4294967296", 4294967296.0},
        {"99999", 99999},
        {"999999999", 999999999},
        {"1234567890", 1234567890},
        {"123456789 0", 123456789},
        {"0000000000012", 12},
        {"            7", 7},
        {"      12 3", 12},
    };
    for (const auto& [text, value] : table) {
        EXPECT_EQ(numericValue(text), value) << '"' << text << '"';
    }
}

TEST(NumericValueTest, ATextThatIsNotANumberCountsAsZero) {
    for (const std::string_view text : {""sv,
                                        " "sv,
                                        "       "sv,
                                        "abc"sv,
                                        "-"sv,
                                        "+"sv,
                                        "."sv,
                                        "-."sv,
                                        "--1"sv,
                                        "+-1"sv,
                                        "- 1"sv,
                                        "e5"sv,
                                        ".e5"sv,
                                        "inf"sv,
                                        "-inf"sv,
                                        "nan"sv,
                                        "-nan"sv,
                                        "infinity"sv,
                                        "\t5"sv,
                                        "\0"sv,
                                        "\0005"sv,
                                        "\xFF"sv,
                                        "\xFF\xFF\xFF\xFF\xFF"sv,
                                        "\xA0"
                                        "5"sv}) {
        EXPECT_EQ(numericValue(text), 0) << '"' << text << '"';
    }
}

TEST(NumericValueTest, BytesThatAreNoPartOfTheNumberEndIt) {
    EXPECT_EQ(numericValue("12\0003"sv), 12);
    EXPECT_EQ(numericValue("12\xFF"sv), 12);
    EXPECT_EQ(numericValue("12\n"sv), 12);
}

TEST(NumericValueTest, ANumberBeyondADoubleIsAnOverflow) {
    EXPECT_THROW(numericValue("1e999"), OverflowError);
    EXPECT_THROW(numericValue("-1e999"), OverflowError);
}

TEST(NumericValueTest, EveryTextOfTwoBytesIsANumberOrZero) {
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const std::string text{static_cast<char>(first), static_cast<char>(second)};
            const double value = numericValue(text);
            EXPECT_TRUE(value >= -9 && value <= 99) << first << " " << second;
        }
    }
}

TEST(RoundTo16BitTest, RoundsToTheNearestAndTiesToEven) {
    const std::vector<std::pair<double, int>> table{
        {0, 0},           {0.4, 0},         {0.5, 0},         {0.6, 1},           {1.5, 2},   {2.5, 2},
        {3.5, 4},         {-0.5, 0},        {-1.5, -2},       {-2.5, -2},         {-2.6, -3}, {32767, 32767},
        {32767.4, 32767}, {32766.5, 32766}, {-32768, -32768}, {-32768.5, -32768},
    };
    for (const auto& [value, rounded] : table) {
        EXPECT_EQ(roundTo16Bit(value), rounded) << value;
    }
}

TEST(RoundTo16BitTest, WhatDoesNotFitSixteenBitsIsAnOverflow) {
    for (const double value :
         {32767.5, 32768.0, -32768.6, -32769.0, 1e300, -1e300, std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW(roundTo16Bit(value), OverflowError) << value;
    }
}

TEST(WholeNumberTest, ReadsANumberWithOrWithoutBlanksAroundIt) {
    const std::vector<std::pair<std::string_view, int>> table{
        {"12", 12}, {" 12 ", 12}, {"007", 7},   {"-5", -5},
        {"+5", 5},  {"1.5", 2},   {"1e2", 100}, {"32767", 32767},
    };
    for (const auto& [text, value] : table) {
        EXPECT_EQ(wholeNumber(text), value) << '"' << text << '"';
    }
}

TEST(WholeNumberTest, ATextThatIsNotEntirelyANumberIsATypeMismatch) {
    for (const std::string_view text :
         {""sv, "   "sv, "-"sv, "12a"sv, "1 2"sv, "0x10"sv, "inf"sv, "nan"sv, "12\0"sv, "\xFF"sv, "1:30"sv}) {
        EXPECT_THROW(wholeNumber(text), TypeMismatchError) << '"' << text << '"';
    }
}

TEST(WholeNumberTest, WhatDoesNotFitSixteenBitsIsAnOverflow) {
    for (const std::string_view text : {"32768"sv, "-32769"sv, "1e9"sv, "1e999"sv}) {
        EXPECT_THROW(wholeNumber(text), OverflowError) << text;
    }
}

} // namespace
} // namespace planner::test
