// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/data_scritta.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

struct Scritta {
    std::string_view testo;
    std::string_view giorno; // yyyymmdd while 15 March 2006 is shown; empty for no day
};

class DataScrittaTest : public testing::TestWithParam<Scritta> {};

TEST_P(DataScrittaTest, IsTheDayMeant) {
    const auto giorno = dataScritta(GetParam().testo, parseDate("20060315").value());
    EXPECT_EQ(giorno ? formatDate(*giorno) : "", GetParam().giorno) << GetParam().testo;
}

INSTANTIATE_TEST_SUITE_P(Written, DataScrittaTest,
                         testing::Values(Scritta{"15/8", "20060815"}, Scritta{"15", "20060315"},
                                         Scritta{"1", "20060301"}, Scritta{"15/8/26", "20260815"},
                                         Scritta{"15/08/2026", "20260815"}, Scritta{"15.8", "20060815"},
                                         Scritta{"15-8", "20060815"}, Scritta{"05-8.2007", "20070805"},
                                         Scritta{"  15 / 8  ", "20060815"}, Scritta{"29/2/8", ""},
                                         Scritta{"29/2/08", "20080229"}, Scritta{"1/1/00", "20000101"},
                                         Scritta{"1/1/55", "20550101"}, Scritta{"1/1/56", "19560101"},
                                         Scritta{"31/12/99", "19991231"}, Scritta{"1/1/1753", "17530101"}));

INSTANTIATE_TEST_SUITE_P(
    Nonsense, DataScrittaTest,
    testing::Values(Scritta{"", ""}, Scritta{" ", ""}, Scritta{"/", ""}, Scritta{"15/", ""},
                    Scritta{"/8", ""}, Scritta{"15//26", ""}, Scritta{"15/8/2026/1", ""},
                    Scritta{"15/8/2026/", ""}, Scritta{"0", ""}, Scritta{"32", ""}, Scritta{"29/2", ""},
                    Scritta{"31/4", ""}, Scritta{"15/13", ""}, Scritta{"15/0", ""}, Scritta{"015", ""},
                    Scritta{"15/008", ""}, Scritta{"15/8/026", ""}, Scritta{"15/8/6", ""},
                    Scritta{"15/8/02026", ""}, Scritta{"1/1/1752", ""}, Scritta{"1/1/0000", ""},
                    Scritta{"+5", ""}, Scritta{"-5", ""}, Scritta{"5e0", ""}, Scritta{"15 8", ""},
                    Scritta{"15,8", ""}, Scritta{"agosto", ""}, Scritta{"15/8/+6", ""},
                    Scritta{"99999999999999999999", ""}, Scritta{"\xD9\xA1\xD9\xA5", ""},
                    Scritta{std::string_view("15\0", 3), ""}, Scritta{std::string_view("\0\xFF", 2), ""},
                    Scritta{"//////////////////////", ""}));

TEST(DataScrittaRulesTest, WhatIsMissingComesFromTheShownDay) {
    const auto december = parseDate("99991231").value();
    EXPECT_EQ(formatDate(dataScritta("1", december).value()), "99991201");
    EXPECT_EQ(formatDate(dataScritta("1/2/98", december).value()), "99980201");
    EXPECT_FALSE(dataScritta("1/2/01", december)) << "the nearest is 10001";
    EXPECT_FALSE(dataScritta("30", parseDate("20060215").value())) << "February has no such day";
}

} // namespace
} // namespace planner::test
