// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plfgraf/chart_rules.h"
#include "ports/runtime_errors.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace planner::test {

TEST(ConvertiOreTest, ReadsHoursAndMinutes) {
    EXPECT_EQ(ConvertiOre("0007:30"), 7.5);
    EXPECT_EQ(ConvertiOre("0000:00"), 0);
    EXPECT_EQ(ConvertiOre("0000:15"), 0.25);
    EXPECT_EQ(ConvertiOre("9999:45"), 9999.75);
    EXPECT_EQ(ConvertiOre("1234530"), 12345.5);
    EXPECT_EQ(ConvertiOre("    830"), 8.5);
}

TEST(ConvertiOreTest, TakesNoNumberAsZero) {
    EXPECT_EQ(ConvertiOre("       "), 0);
    EXPECT_EQ(ConvertiOre("abcdefg"), 0);
    EXPECT_EQ(ConvertiOre("0007:xx"), 7);
    EXPECT_EQ(ConvertiOre("xxxxx30"), 0.5);
    EXPECT_EQ(ConvertiOre(""), 0);
}

TEST(ConvertiOreTest, MinutesBeyondAnHourCount) {
    EXPECT_EQ(ConvertiOre("0001:90"), 2.5);
}

TEST(ConvertiOreTest, HoursMayBeNegativeOrBroken) {
    EXPECT_EQ(ConvertiOre("-0002:0"), -2);
    EXPECT_EQ(ConvertiOre("1.50000"), 1.5);
    EXPECT_EQ(ConvertiOre("1e30000"), 1e300);
}

TEST(ConvertiOreTest, HoursBeyondADoubleOverflow) {
    EXPECT_THROW(ConvertiOre("9e99900"), OverflowError);
}

TEST(MassimoConMargineTest, IsATenthMoreInWholeHours) {
    EXPECT_EQ(massimoConMargine(0), 0);
    EXPECT_EQ(massimoConMargine(0.5), 0);
    EXPECT_EQ(massimoConMargine(7.5), 8);
    EXPECT_EQ(massimoConMargine(9), 9);
    EXPECT_EQ(massimoConMargine(10), 11);
    EXPECT_EQ(massimoConMargine(160), 176);
    EXPECT_EQ(massimoConMargine(10'000), 11'000);
}

TEST(MassimoConMargineTest, OverflowsBeyondADouble) {
    EXPECT_THROW(massimoConMargine(1e308), OverflowError);
    EXPECT_THROW(massimoConMargine(std::numeric_limits<double>::infinity()), OverflowError);
    EXPECT_THROW(massimoConMargine(std::nan("")), OverflowError);
}

TEST(ArrotondaMassimoTest, IsThePowerOfTenAboveTheMaximumAndATenth) {
    EXPECT_EQ(ArrotondaMassimo(0), 10);
    EXPECT_EQ(ArrotondaMassimo(7.5), 10);
    EXPECT_EQ(ArrotondaMassimo(9.5), 10);
    EXPECT_EQ(ArrotondaMassimo(9.99), 10);
    EXPECT_EQ(ArrotondaMassimo(10), 100);
    EXPECT_EQ(ArrotondaMassimo(90), 100);
    EXPECT_EQ(ArrotondaMassimo(91), 1000);
    EXPECT_EQ(ArrotondaMassimo(160), 1000);
    EXPECT_EQ(ArrotondaMassimo(909), 1000);
    EXPECT_EQ(ArrotondaMassimo(910), 10'000);
}

TEST(ArrotondaMassimoTest, FitsSixteenBitsUpToFourDigits) {
    EXPECT_EQ(ArrotondaMassimo(9090), 10'000); // 9090 + 909 = 9999
    EXPECT_EQ(ArrotondaMassimo(9090.99), 10'000);
    EXPECT_THROW(ArrotondaMassimo(9091), OverflowError); // 9091 + 909 = 10000
    EXPECT_THROW(ArrotondaMassimo(10'000), OverflowError);
}

TEST(ArrotondaMassimoTest, OverflowsForAnyGreaterNumber) {
    EXPECT_THROW(ArrotondaMassimo(1e5), OverflowError);
    EXPECT_THROW(ArrotondaMassimo(1e300), OverflowError);
    EXPECT_THROW(ArrotondaMassimo(-1e300), OverflowError);
    EXPECT_THROW(ArrotondaMassimo(std::numeric_limits<double>::infinity()), OverflowError);
    EXPECT_THROW(ArrotondaMassimo(std::nan("")), OverflowError);
}

} // namespace planner::test
