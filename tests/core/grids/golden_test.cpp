// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/data_file.h"
#include "support/griglia_text.h"
#include "support/planner_bench.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

/// The small office's entries that fall into `anno` and `mese`: first and last day, several kinds a day,
/// concluded work, an unknown staff member.
std::vector<RigaPlanner> entriesOf(const std::string& annoMese, const std::string& lastDay) {
    return {riga("BI", annoMese + "01", {{1, "00002"}}),
            riga("BI", annoMese + lastDay, {{7, "00001"}, {8, "00001"}}),
            riga("RB", annoMese + "10", {{2, "00001"}, {5, "00001"}}),
            riga("RB", annoMese + "11", {{3, "00004"}, {9, "00001"}}),
            riga("7", annoMese + "15", {{5, "1"}, {6, "1"}, {7, "1"}, {8, "1"}}),
            riga("ZZ", annoMese + "20", {{8, "00003"}})};
}

class GoldenTest : public testing::Test {
protected:
    std::string monthly(const std::string& annoMese, const std::string& lastDay) {
        bench.putRighe(entriesOf(annoMese, lastDay));
        bench.init("M", annoMese + "15");
        return tabella(bench.controlli.Flxm);
    }

    PlannerBench bench;
};

TEST_F(GoldenTest, AMonthThatStartsOnMonday) {
    EXPECT_EQ(monthly("200605", "31"), readDataFile("mensile_2006_05.txt"));
}

TEST_F(GoldenTest, AMonthOf31DaysThatStartsOnSunday) {
    EXPECT_EQ(monthly("200610", "31"), readDataFile("mensile_2006_10.txt"));
}

TEST_F(GoldenTest, FebruaryOfALeapYear) {
    EXPECT_EQ(monthly("200402", "29"), readDataFile("mensile_2004_02.txt"));
}

TEST_F(GoldenTest, FebruaryOfACommonYear) {
    EXPECT_EQ(monthly("200602", "28"), readDataFile("mensile_2006_02.txt"));
}

TEST_F(GoldenTest, AMonthWithoutDetails) {
    bench.sessione.ModoFinestra = "N";
    EXPECT_EQ(monthly("200612", "31"), readDataFile("mensile_2006_12_non_dettagliato.txt"));
}

TEST_F(GoldenTest, ADayWithEntriesAtItsEnds) {
    bench.putRighe({conOrario(riga("BI", "20060315", {{1, "00001"}}), "00", "00", "0000130"),
                    conOrario(riga("BI", "20060315", {{7, "00001"}}), "23", "45", "0000300"),
                    conOrario(riga("RB", "20060315", {{2, "00001"}}), "09", "20", "0000045"),
                    riga("RB", "20060315", {{8, "00001"}}),
                    conOrario(riga("7", "20060315", {{9, "00001"}}), "12", "00", "0000100"),
                    conOrario(riga("ZZ", "20060315", {{5, "00001"}}), "18", "00", "0000015"),
                    conOrario(riga("BI", "20060316", {{1, "00001"}}), "10", "00", "0000100")});
    bench.init("G", "20060315");
    std::string rows;
    for (int row = 0; row < bench.controlli.flxg.Rows(); ++row) {
        rows += std::to_string(bench.controlli.flxg.RowHeight(row)) + ": " +
                elencoRiga(bench.controlli.flxg, row) + "\n";
    }
    EXPECT_EQ(rows, readDataFile("giornaliera_2006_03_15.txt"));
}

TEST_F(GoldenTest, ALeapYearWithMarksAtItsEdges) {
    bench.putAnnuale(annoPlanner("2004", {{1, 4}, {2, 35}, {2, 36}, {8, 37}, {8, 38}, {12, 42}, {12, 1}}));
    bench.init("A", "00000000", "20040101", "20041231");
    EXPECT_EQ(tabella(bench.controlli.flxa), readDataFile("annuale_2004.txt"));
}

} // namespace
} // namespace planner::test
