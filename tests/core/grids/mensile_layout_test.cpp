// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/planner_bench.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

class MensileLayoutTest : public testing::Test {
protected:
    /// Lays the month out as a move to it does.
    void show(int year, int month, int day = 1) {
        bench.controlli.calendario.setValue(*makeDate(year, month, day));
        bench.motore.showgrid();
    }
    std::string_view dayNumber(int column) const { return Flxm.TextMatrix(1, column); }
    Colore colour(int row, int column) const { return Flxm.CellForeColor(row, column); }

    PlannerBench bench;
    const Griglia& Flxm = bench.controlli.Flxm;
};

TEST_F(MensileLayoutTest, AMonthThatStartsOnSundayHasDay1InColumn7) {
    show(2006, 10);
    EXPECT_EQ(dayNumber(6), "");
    EXPECT_EQ(dayNumber(7), "1");
}

TEST_F(MensileLayoutTest, A31DayMonthThatStartsOnSundayEndsInColumn37) {
    show(2006, 10);
    EXPECT_EQ(dayNumber(37), "31");
    EXPECT_EQ(dayNumber(0), "");
}

TEST_F(MensileLayoutTest, AMonthThatStartsOnMondayHasDay1InColumn1) {
    show(2006, 5);
    EXPECT_EQ(dayNumber(1), "1");
    EXPECT_EQ(dayNumber(31), "31");
    EXPECT_EQ(dayNumber(32), "");
}

TEST_F(MensileLayoutTest, FebruaryOfALeapYearShows29Days) {
    show(2004, 2);
    EXPECT_EQ(dayNumber(7), "1");
    EXPECT_EQ(dayNumber(35), "29");
    EXPECT_EQ(dayNumber(36), "");
    EXPECT_EQ(bench.sessione.GiorniMese[1], "29");
}

TEST_F(MensileLayoutTest, FebruaryOfACommonYearShows28Days) {
    show(2004, 2);
    show(2006, 2);
    EXPECT_EQ(dayNumber(3), "1");
    EXPECT_EQ(dayNumber(30), "28");
    EXPECT_EQ(dayNumber(31), "");
    EXPECT_EQ(bench.sessione.GiorniMese[1], "28");
}

TEST_F(MensileLayoutTest, EveryDayOfEveryMonthStandsUnderItsWeekday) {
    for (int year = 2000; year <= 2007; ++year) {
        for (int month = 1; month <= 12; ++month) {
            show(year, month);
            int day = 0;
            for (int column = 1; column <= 37; ++column) {
                if (dayNumber(column).empty()) {
                    continue;
                }
                ++day;
                ASSERT_EQ(dayNumber(column), std::to_string(day));
                const int weekday = weekdayOf(*makeDate(year, month, day)); // 1 = Sunday
                ASSERT_EQ((column - 1) % 7, (weekday + 5) % 7) << year << "-" << month << "-" << day;
            }
            const std::chrono::year_month_day_last last{std::chrono::year{year} / static_cast<int>(month) /
                                                        std::chrono::last};
            ASSERT_EQ(static_cast<unsigned>(day), static_cast<unsigned>(last.day()));
        }
    }
}

TEST_F(MensileLayoutTest, SaturdaysAndSundaysAreRedAndOtherDaysBlack) {
    show(2006, 3); // no holiday
    for (int column = 3; column <= 33; ++column) {
        const Colore expected = isWeekendColumn(column) ? Colore::rosso : Colore::nero;
        EXPECT_EQ(colour(0, column), expected) << column;
        EXPECT_EQ(colour(1, column), expected) << column;
    }
}

TEST_F(MensileLayoutTest, AHolidaysNumberAndTheLetterAboveAreBothRed) {
    show(2006, 6); // the 2nd is a Friday
    ASSERT_EQ(dayNumber(5), "2");
    EXPECT_EQ(colour(0, 5), Colore::rosso);
    EXPECT_EQ(colour(1, 5), Colore::rosso);
    EXPECT_EQ(colour(0, 4), Colore::nero);
    EXPECT_EQ(colour(1, 4), Colore::nero);
}

TEST_F(MensileLayoutTest, AMoveToAnotherMonthLeavesNothingOfTheOneBefore) {
    show(2006, 10);
    show(2006, 6);
    show(2006, 3);
    PlannerBench fresh;
    fresh.controlli.calendario.setValue(*makeDate(2006, 3, 1));
    fresh.motore.showgrid();
    for (int row = 0; row <= 1; ++row) {
        for (int column = 0; column <= 37; ++column) {
            EXPECT_EQ(Flxm.TextMatrix(row, column), fresh.controlli.Flxm.TextMatrix(row, column));
            EXPECT_EQ(rgb(colour(row, column)), rgb(fresh.controlli.Flxm.CellForeColor(row, column)))
                << row << "," << column;
        }
    }
}

TEST_F(MensileLayoutTest, WidthsHeightsAndAlignments) {
    show(2006, 3);
    EXPECT_EQ(Flxm.ColWidth(0), 2000);
    for (int column = 1; column <= 37; ++column) {
        EXPECT_EQ(Flxm.ColWidth(column), 350);
        EXPECT_EQ(stile(Flxm.cella(0, column)).allineamento, Allineamento::centro);
        EXPECT_EQ(stile(Flxm.cella(1, column)).allineamento, Allineamento::centro);
    }
    EXPECT_EQ(Flxm.RowHeight(0), 300);
    EXPECT_EQ(Flxm.RowHeight(1), 300);
}

TEST_F(MensileLayoutTest, ColumnZeroIsCentred) {
    bench.init("M", "20060315");
    for (int row = 0; row < Flxm.Rows(); ++row) {
        EXPECT_EQ(stile(Flxm.cella(row, 0)).allineamento, Allineamento::centro) << row;
    }
}

TEST_F(MensileLayoutTest, TheShownDayStays) {
    show(2006, 3, 31);
    EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20060331");
}

} // namespace
} // namespace planner::test
