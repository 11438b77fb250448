// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ports/runtime_errors.h"
#include "session/calendario.h"
#include "session/dates.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

using namespace std::chrono;

constexpr Data day(int year, unsigned month, unsigned dayOfMonth) {
    return {std::chrono::year{year}, std::chrono::month{month}, std::chrono::day{dayOfMonth}};
}

TEST(MakeDateTest, OnlyDaysOfTheCalendarAreDates) {
    EXPECT_EQ(makeDate(2006, 3, 15), day(2006, 3, 15));
    EXPECT_EQ(makeDate(2004, 2, 29), day(2004, 2, 29));
    EXPECT_FALSE(makeDate(2006, 2, 29));
    EXPECT_FALSE(makeDate(1900, 2, 29));
    EXPECT_FALSE(makeDate(2006, 4, 31));
    EXPECT_FALSE(makeDate(2006, 0, 1));
    EXPECT_FALSE(makeDate(2006, 13, 1));
    EXPECT_FALSE(makeDate(2006, 1, 0));
    EXPECT_FALSE(makeDate(2006, 1, 32));
}

TEST(MakeDateTest, NumbersBeyondTheBytesThatHoldThemDoNotWrapRound) {
    EXPECT_FALSE(makeDate(2006, 257, 1)); // 256 more than January
    EXPECT_FALSE(makeDate(2006, 1, 257));
    EXPECT_FALSE(makeDate(2006, -1, 1));
    EXPECT_FALSE(makeDate(2006, 1, -1));
    EXPECT_FALSE(makeDate(65536 + 2006, 1, 1));
}

TEST(MakeDateTest, YearsRunFrom1753To9999) {
    EXPECT_TRUE(makeDate(1753, 1, 1));
    EXPECT_TRUE(makeDate(9999, 12, 31));
    EXPECT_FALSE(makeDate(1752, 12, 31));
    EXPECT_FALSE(makeDate(10000, 1, 1));
    EXPECT_FALSE(makeDate(0, 1, 1));
}

TEST(DateFromTextsTest, TakesNumbersWithOrWithoutBlanksAndZeros) {
    EXPECT_EQ(dateFromTexts("15", "03", "2006"), day(2006, 3, 15));
    EXPECT_EQ(dateFromTexts(" 5", "3 ", "2006"), day(2006, 3, 5));
    EXPECT_EQ(dateFromTexts("05", "3", "2006"), day(2006, 3, 5));
}

TEST(DateFromTextsTest, AnImpossibleDateIsARunTimeErrorThatShowsIt) {
    try {
        dateFromTexts("30", "02", "2006");
        FAIL() << "30 February was taken";
    } catch (const DateError& error) {
        EXPECT_STREQ(error.what(), "la data 30/02/2006 non esiste");
    }
    EXPECT_THROW(dateFromTexts("", "03", "2006"), DateError);
    EXPECT_THROW(dateFromTexts("1a", "03", "2006"), DateError);
    EXPECT_THROW(dateFromTexts("-1", "03", "2006"), DateError);
    EXPECT_THROW(dateFromTexts("15", "03", "    "), DateError);
    EXPECT_THROW(dateFromTexts("\xFF\xFF", "03", "2006"), DateError);
}

TEST(ParseDateTest, ReadsEightDigits) {
    EXPECT_EQ(parseDate("20060315"), day(2006, 3, 15));
    for (const std::string_view text : {"", "2006031", "200603155", "2006 315", "2006-3-1", "+2060315",
                                        "20060230", "20061301", "00000000", "abcdefgh"}) {
        EXPECT_FALSE(parseDate(text)) << text;
    }
}

TEST(FormatDateTest, WritesEightDigits) {
    EXPECT_EQ(formatDate(day(2006, 3, 5)), "20060305");
    EXPECT_EQ(formatDate(day(1753, 12, 31)), "17531231");
}

TEST(FormatDateTest, ReadsBackAllDaysOfAFewYears) {
    for (sys_days at = sys_days(day(1999, 12, 31)); at < sys_days(day(2005, 1, 2)); at += days{1}) {
        const Data data(at);
        ASSERT_EQ(parseDate(formatDate(data)), data);
    }
}

TEST(TwoDigitsTest, AddsALeadingZero) {
    EXPECT_EQ(twoDigits(5), "05");
    EXPECT_EQ(twoDigits(12), "12");
}

TEST(WeekdayTest, CountsFromSunday) {
    EXPECT_EQ(weekdayOf(day(2006, 10, 1)), 1);
    EXPECT_EQ(weekdayOf(day(2006, 10, 2)), 2);
    EXPECT_EQ(weekdayOf(day(2006, 10, 7)), 7);
}

TEST(CalendarioTest, HoldsTheShownDay) {
    Calendario calendario;
    calendario.setValue(day(2006, 3, 5));
    EXPECT_EQ(calendario.Day(), 5);
    EXPECT_EQ(calendario.Month(), 3);
    EXPECT_EQ(calendario.Year(), 2006);
    EXPECT_EQ(calendario.testoRisposta(), "20060305");
}

TEST(CalendarioTest, RefusesWhatIsNoDayAndKeepsTheOneItHas) {
    Calendario calendario;
    calendario.setValue(day(2006, 3, 5));
    EXPECT_THROW(calendario.setValue(day(2006, 2, 30)), DateError);
    EXPECT_THROW(calendario.setValue(day(1752, 12, 31)), DateError);
    EXPECT_EQ(calendario.Value(), day(2006, 3, 5));
}

} // namespace
} // namespace planner::test
