// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/period_moves.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

namespace planner {
namespace {

Data day(std::string_view yyyymmdd) {
    return parseDate(yyyymmdd).value();
}

PeriodoSessione period(std::string_view first, std::string_view last) {
    return {day(first), day(last)};
}

std::string moved(std::optional<Data> data) {
    return data ? formatDate(*data) : "stays";
}

TEST(PeriodMovesTest, FromThe31stOfJanuaryFebruaryShowsItsLastDay) {
    EXPECT_EQ(moved(moveMonth(day("20040131"), 1, period("20040101", "20041231"))), "20040229");
    EXPECT_EQ(moved(moveMonth(day("20060131"), 1, period("20060101", "20061231"))), "20060228");
}

TEST(PeriodMovesTest, BackFromDay31IntoAMonthOf30DaysGivesDay30) {
    EXPECT_EQ(moved(moveMonth(day("20060731"), -1, period("20060101", "20061231"))), "20060630");
}

TEST(PeriodMovesTest, AYearsMoveFromThe29thOfFebruaryShowsThe28th) {
    EXPECT_EQ(moved(moveYear(day("20040229"), 1, period("20040101", "20051231"))), "20050228");
}

TEST(PeriodMovesTest, YearMovesDoNothingInAPeriodOfOneYear) {
    EXPECT_EQ(moved(moveYear(day("20060615"), 1, period("20060101", "20061231"))), "stays");
    EXPECT_EQ(moved(moveYear(day("20060615"), -1, period("20060101", "20061231"))), "stays");
}

TEST(PeriodMovesTest, MonthBoundsAreWholeMonths) {
    const auto periodo = period("20060220", "20060410");
    EXPECT_EQ(moved(moveMonth(day("20060315"), -1, periodo)), "20060215");
    EXPECT_EQ(moved(moveMonth(day("20060215"), -1, periodo)), "stays");
    EXPECT_EQ(moved(moveMonth(day("20060315"), 1, periodo)), "20060415");
    EXPECT_EQ(moved(moveMonth(day("20060415"), 1, periodo)), "stays");
}

TEST(PeriodMovesTest, MonthsMoveAcrossTheYearsEndInAPeriodOfTwoYears) {
    const auto periodo = period("20051101", "20060228");
    EXPECT_EQ(moved(moveMonth(day("20051215"), 1, periodo)), "20060115");
    EXPECT_EQ(moved(moveMonth(day("20060115"), -1, periodo)), "20051215");
    EXPECT_EQ(moved(moveMonth(day("20060115"), -1, period("20060101", "20061231"))), "stays");
}

TEST(PeriodMovesTest, DayBoundsAreDays) {
    const auto periodo = period("20060228", "20060302");
    EXPECT_EQ(moved(moveDay(day("20060228"), 1, periodo)), "20060301");
    EXPECT_EQ(moved(moveDay(day("20060228"), -1, periodo)), "stays");
    EXPECT_EQ(moved(moveDay(day("20060302"), 1, periodo)), "stays");
    EXPECT_EQ(moved(moveDay(day("20060101"), -1, period("20051201", "20061231"))), "20051231");
}

TEST(PeriodMovesTest, FromOutsideThePeriodAMoveOnlyComesBack) {
    const auto periodo = period("20060301", "20060430");
    EXPECT_EQ(moved(moveMonth(day("20060115"), 1, periodo)), "20060315");
    EXPECT_EQ(moved(moveMonth(day("20060115"), -1, periodo)), "stays");
    EXPECT_EQ(moved(moveDay(day("20070101"), -1, periodo)), "20060430");
    EXPECT_EQ(moved(moveDay(day("20070101"), 1, periodo)), "stays");
}

/// Random periods of up to three years, always the same ones.
class RandomPeriods : public testing::Test {
protected:
    Data randomDay(int firstYear, int years) {
        const auto year = firstYear + static_cast<int>(random() % static_cast<unsigned>(years));
        const auto month = 1 + static_cast<int>(random() % 12);
        const auto of = 1 + static_cast<int>(random() % 28);
        return makeDate(year, month, of).value();
    }
    PeriodoSessione randomPeriod() {
        Data a = randomDay(1999, 3);
        Data b = randomDay(1999, 3);
        return {std::min(a, b), std::max(a, b)};
    }
    std::mt19937 random{20060315};
};

TEST_F(RandomPeriods, EveryMonthInsideIsReachedAndNoneOutside) {
    for (int round = 0; round < 500; ++round) {
        const PeriodoSessione periodo = randomPeriod();
        std::set<std::string> reached;
        Data shown = periodo.fine;
        reached.insert(formatDate(shown).substr(0, 6));
        while (const auto next = moveMonth(shown, -1, periodo)) {
            shown = *next;
            ASSERT_TRUE(shown.ok());
            ASSERT_TRUE(wholeMonths(periodo).contiene(shown)) << formatDate(shown);
            reached.insert(formatDate(shown).substr(0, 6));
        }
        const int months = (yearOf(periodo.fine) - yearOf(periodo.inizio)) * 12 + monthOf(periodo.fine) -
                           monthOf(periodo.inizio) + 1;
        EXPECT_EQ(static_cast<int>(reached.size()), months);
    }
}

TEST_F(RandomPeriods, EveryDayInsideIsReachedAndNoneOutside) {
    for (int round = 0; round < 100; ++round) {
        const PeriodoSessione periodo = randomPeriod();
        int days = 1;
        Data shown = periodo.inizio;
        while (const auto next = moveDay(shown, 1, periodo)) {
            ASSERT_EQ(std::chrono::sys_days(*next), std::chrono::sys_days(shown) + std::chrono::days(1));
            shown = *next;
            ASSERT_TRUE(periodo.contiene(shown));
            ++days;
        }
        EXPECT_EQ(shown, periodo.fine);
        EXPECT_EQ(days,
                  (std::chrono::sys_days(periodo.fine) - std::chrono::sys_days(periodo.inizio)).count() + 1);
    }
}

TEST_F(RandomPeriods, AnyMixOfMovesKeepsTheDateValidAndInside) {
    for (int round = 0; round < 500; ++round) {
        const PeriodoSessione periodo = randomPeriod();
        Data shown = periodo.inizio;
        for (int move = 0; move < 50; ++move) {
            const int step = random() % 2 == 0 ? 1 : -1;
            const auto next =
                random() % 3 == 0 ? moveYear(shown, step, periodo) : moveMonth(shown, step, periodo);
            shown = next.value_or(shown);
            ASSERT_TRUE(shown.ok());
            ASSERT_TRUE(wholeMonths(periodo).contiene(shown));
        }
    }
}

} // namespace
} // namespace planner
