// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/planner_bench.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

class AnnualeTest : public testing::Test {
protected:
    void show(std::string_view year, std::initializer_list<std::pair<int, int>> marked = {}) {
        bench.putAnnuale(annoPlanner(year, marked));
        bench.init("A", "00000000", std::string(year) + "0315", std::string(year) + "1231");
    }
    bool isMarked(int month, int column) const {
        return flxa.CellForeColor(month, column) == Colore::bianco &&
               flxa.CellBackColor(month, column) == Colore::navy;
    }

    PlannerBench bench;
    const Griglia& flxa = bench.controlli.flxa;
};

TEST_F(AnnualeTest, AYearWhose1JanuaryIsAMondayHasIt1InColumn1OfRow1) {
    show("2007");
    EXPECT_EQ(flxa.TextMatrix(1, 1), "1");
    EXPECT_EQ(flxa.TextMatrix(1, 31), "31");
}

TEST_F(AnnualeTest, FebruaryOfALeapYearShows29Days) {
    show("2004");
    EXPECT_EQ(flxa.TextMatrix(2, 7), "1");
    EXPECT_EQ(flxa.TextMatrix(2, 35), "29");
    EXPECT_EQ(flxa.TextMatrix(2, 36), "");
    show("2006");
    EXPECT_EQ(flxa.TextMatrix(2, 30), "28");
    EXPECT_EQ(flxa.TextMatrix(2, 31), "");
}

TEST_F(AnnualeTest, TheCornerShowsTheYearCentredBoldSize10AndNavy) {
    show("2006");
    const Cella& corner = flxa.cella(0, 0);
    EXPECT_EQ(flxa.TextMatrix(0, 0), "2006");
    EXPECT_EQ(flxa.CellForeColor(0, 0), Colore::navy);
    EXPECT_EQ(stile(corner).allineamento, Allineamento::centro);
    EXPECT_EQ(carattere(stile(corner).carattere).punti, 10);
    EXPECT_TRUE(carattere(stile(corner).carattere).grassetto);
}

TEST_F(AnnualeTest, MonthsAreNamedInBold) {
    show("2006");
    for (int month = 1; month <= 12; ++month) {
        EXPECT_EQ(flxa.TextMatrix(month, 0), NomiMesi.at(static_cast<std::size_t>(month - 1)));
        EXPECT_TRUE(carattere(stile(flxa.cella(month, 0)).carattere).grassetto);
        EXPECT_EQ(flxa.RowHeight(month), 700);
    }
    EXPECT_EQ(flxa.RowHeight(0), 500);
    for (int column = 1; column <= 37; ++column) {
        EXPECT_EQ(flxa.ColWidth(column), 350);
    }
}

TEST_F(AnnualeTest, DaysStandUnderTheirWeekdaysOnLightGrey) {
    show("2006");
    for (int month = 1; month <= 12; ++month) {
        for (int column = 1; column <= 37; ++column) {
            const std::string_view text = flxa.TextMatrix(month, column);
            if (text.empty()) {
                EXPECT_EQ(flxa.cella(month, column), Cella{}) << month << "," << column;
                continue;
            }
            const int weekday = weekdayOf(*makeDate(2006, month, std::stoi(std::string(text))));
            EXPECT_EQ((column - 1) % 7, (weekday + 5) % 7) << month << "/" << text;
            EXPECT_EQ(flxa.CellBackColor(month, column), Colore::grigioChiaro);
            EXPECT_EQ(flxa.CellForeColor(month, column),
                      isWeekendColumn(column) ? Colore::rosso : Colore::nero);
        }
    }
}

TEST_F(AnnualeTest, AMarkedCellIsWhiteOnNavy) {
    show("2006", {{1, 10}, {12, 5}});
    EXPECT_TRUE(isMarked(1, 10));
    EXPECT_TRUE(isMarked(12, 5));
    EXPECT_FALSE(isMarked(1, 9));
    EXPECT_FALSE(isMarked(2, 10));
    EXPECT_EQ(flxa.TextMatrix(1, 10), "4");
}

TEST_F(AnnualeTest, OnlyAnAsteriskMarks) {
    auto mesi = annoPlanner("2006");
    for (int byte = 0; byte < 256; ++byte) {
        mesi[0].segni[9].assign(std::string(1, static_cast<char>(byte)));
        bench.putAnnuale(mesi);
        bench.init("A", "00000000", "20060101");
        ASSERT_EQ(isMarked(1, 10), byte == '*') << byte;
    }
}

TEST_F(AnnualeTest, AMarkOnCell37IsShownAndOneBeyondIsNot) {
    show("2006", {{10, 37}, {10, 38}, {10, 42}});
    EXPECT_TRUE(isMarked(10, 37));
    int marks = 0;
    for (int month = 0; month <= 12; ++month) {
        for (int column = 0; column <= 37; ++column) {
            marks += isMarked(month, column) ? 1 : 0;
        }
    }
    EXPECT_EQ(marks, 1);
}

TEST_F(AnnualeTest, TheShownDayStaysThroughTheWalkAroundTheYear) {
    bench.putAnnuale(annoPlanner("2006"));
    bench.init("A", "20060831", "20060101");
    EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20060831");
    EXPECT_EQ(bench.controlli.PrimoGiornoSettimana(), 3);
    bench.motore.showgrid3();
    EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20060831");
}

TEST_F(AnnualeTest, ClearingEmptiesTheMonthsAndKeepsTheHeader) {
    show("2006", {{1, 10}});
    bench.motore.PulisciGrid3();
    EXPECT_EQ(flxa.Rows(), 13);
    EXPECT_EQ(flxa.TextMatrix(0, 1), "L");
    for (int month = 1; month <= 12; ++month) {
        for (int column = 0; column <= 37; ++column) {
            ASSERT_EQ(flxa.cella(month, column), Cella{});
        }
    }
}

TEST_F(AnnualeTest, TheNextYearLeavesNothingOfTheOneBefore) {
    show("2006", {{1, 10}, {5, 20}});
    show("2007", {{3, 15}});
    PlannerBench fresh;
    fresh.putAnnuale(annoPlanner("2007", {{3, 15}}));
    fresh.init("A", "00000000", "20070315", "20071231");
    for (int row = 0; row < 13; ++row) {
        for (int column = 0; column <= 37; ++column) {
            EXPECT_EQ(flxa.TextMatrix(row, column), fresh.controlli.flxa.TextMatrix(row, column));
            EXPECT_EQ(flxa.CellBackColor(row, column), fresh.controlli.flxa.CellBackColor(row, column));
            EXPECT_EQ(flxa.CellForeColor(row, column), fresh.controlli.flxa.CellForeColor(row, column));
        }
    }
}

} // namespace
} // namespace planner::test
