// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/planner_bench.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::IsEmpty;

/// March 2006: the 1st stands in column 3; Bianchi, Rossi, Verdi in rows 2 to 4, the unassigned in row 5.
class MensileFillTest : public testing::Test {
protected:
    void fill(const std::vector<RigaPlanner>& righe, std::string_view giorno = "20060315") {
        bench.putRighe(righe);
        bench.init("M", giorno);
    }
    int picture(int row, int column) const { return Flxm.cella(row, column).immagine; }
    int total(int index, Totale totale) const { return bench.sessione.TotaliImpegni.at({index}, totale); }

    PlannerBench bench;
    const Griglia& Flxm = bench.controlli.Flxm;
};

TEST_F(MensileFillTest, ACornerOfMonthAndYearBoldAndNavy) {
    fill({});
    EXPECT_EQ(Flxm.TextMatrix(0, 0), "Marzo");
    EXPECT_EQ(Flxm.TextMatrix(1, 0), "2006");
    for (int row = 0; row <= 1; ++row) {
        EXPECT_EQ(Flxm.CellForeColor(row, 0), Colore::navy);
        EXPECT_TRUE(carattere(stile(Flxm.cella(row, 0)).carattere).grassetto);
    }
}

TEST_F(MensileFillTest, NamesStartInRow2AndTheUnassignedFollow) {
    fill({});
    EXPECT_EQ(Flxm.TextMatrix(2, 0), "Bianchi Rosa");
    EXPECT_EQ(Flxm.TextMatrix(3, 0), "Rossi Bruno");
    EXPECT_EQ(Flxm.TextMatrix(4, 0), "Verdi Ugo");
    EXPECT_EQ(Flxm.TextMatrix(5, 0), "*NON ASSEGNATE*");
    EXPECT_EQ(Flxm.Rows(), 15);
    for (int row = 6; row < 15; ++row) {
        EXPECT_EQ(Flxm.TextMatrix(row, 0), "");
    }
}

TEST_F(MensileFillTest, ARecordMarksItsDayInItsStaffMembersRow) {
    fill({riga("RB", "20060315", {{1, "00001"}}), riga("7 ", "20060331", {{7, "00001"}})});
    EXPECT_EQ(picture(3, 17), 10);
    EXPECT_EQ(picture(4, 33), 8);
}

TEST_F(MensileFillTest, EachMarkingCounterHasItsPictureAndTheOthersHaveNone) {
    const std::array<int, 11> pictures{10, 11, 0, 0, 10, 11, 8, 9, 0, 0, 0};
    for (std::size_t counter = 1; counter <= 11; ++counter) {
        fill({riga("RB", "20060315", {{counter, "00003"}})});
        EXPECT_EQ(picture(3, 17), pictures.at(counter - 1)) << counter;
    }
}

TEST_F(MensileFillTest, AllFourKindsGivePicture1) {
    fill({riga("RB", "20060315", {{7, "1"}, {8, "1"}, {5, "1"}, {6, "1"}})});
    EXPECT_EQ(picture(3, 17), 1);
}

TEST_F(MensileFillTest, TheNonDetailedDisplayShowsPicture16) {
    bench.putRighe({riga("RB", "20060315", {{7, "1"}}), riga("RB", "20060316", {{9, "1"}})});
    bench.sessione.ModoFinestra = "N";
    bench.init("M", "20060315");
    EXPECT_EQ(picture(3, 17), 16);
    EXPECT_EQ(picture(3, 18), 0);
    EXPECT_EQ(stile(Flxm.cella(3, 17)).allineamento, Allineamento::centro);
}

TEST_F(MensileFillTest, DataCellsHoldNoText) {
    fill({riga("RB", "20060315", {{7, "1"}})});
    for (int row = 2; row < Flxm.Rows(); ++row) {
        for (int column = 1; column <= 37; ++column) {
            ASSERT_EQ(Flxm.TextMatrix(row, column), "");
        }
    }
}

TEST_F(MensileFillTest, ABlankOrUnknownStaffCodeIsShownAsUnassigned) {
    fill({riga("  ", "20060301", {{1, "1"}}), riga("ZZ", "20060302", {{1, "1"}}), RigaPlanner{}});
    EXPECT_EQ(picture(5, 3), 10);
    EXPECT_EQ(picture(5, 4), 10);
    EXPECT_EQ(total(3, Totale::scadenze), 2);
}

TEST_F(MensileFillTest, OnlyTheShownMonthAndYearAreTaken) {
    fill({riga("RB", "20060215", {{1, "1"}}), riga("RB", "20060415", {{1, "1"}}),
          riga("RB", "20050315", {{1, "1"}}), riga("RB", "20070315", {{1, "1"}})});
    EXPECT_EQ(total(1, Totale::scadenze), 0);
    for (int column = 1; column <= 37; ++column) {
        EXPECT_EQ(picture(3, column), 0) << column;
    }
}

TEST_F(MensileFillTest, DatesAreNumbersWithOrWithoutZeros) {
    auto record = riga("RB", "20060315", {{1, "1"}});
    record.mese.assign(" 3");
    record.giorno.assign("5");
    fill({record});
    EXPECT_EQ(picture(3, 7), 10);
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
}

TEST_F(MensileFillTest, TheTableElementBeyondTheFilesEndIsNeverLookedAt) {
    const std::string part = bytesOf(riga("RB", "20060315", {{1, "1"}})).substr(0, 40);
    bench.put(FileRighe, bytesOf(riga("BI", "20060301", {{1, "1"}})) + part);
    bench.init("M", "20060315");
    EXPECT_EQ(bench.sessione.archivi.RighePlanner.at(1).codice.view(), "RB");
    EXPECT_EQ(picture(2, 3), 10);
    EXPECT_EQ(picture(3, 17), 0);
}

TEST_F(MensileFillTest, TotalsAddUpOverTheMonthAndStartAnewWithEachFill) {
    fill({riga("RB", "20060301", {{1, "2"}, {9, "1"}}), riga("RB", "20060302", {{5, "3"}, {10, "4"}}),
          riga("BI", "20060303", {{8, "1"}})});
    EXPECT_EQ(total(1, Totale::scadenze), 5);
    EXPECT_EQ(total(1, Totale::scadenzeConcluse), 1);
    EXPECT_EQ(total(1, Totale::praticheConcluse), 4);
    EXPECT_EQ(total(0, Totale::impegniVari), 1);
    bench.motore.PopolaGrid1();
    EXPECT_EQ(total(1, Totale::scadenze), 5);
}

TEST_F(MensileFillTest, TotalsAreSizedByTheAppointmentsNotByTheStaff) {
    fill({riga("RB", "20060301"), riga("RB", "20060302"), riga("RB", "20060303"), riga("RB", "20060304"),
          riga("RB", "20060305")});
    EXPECT_EQ(bench.sessione.TotaliImpegni.upperBound(), 5);
}

TEST_F(MensileFillTest, ConcludedEntriesCountButDoNotMarkTheDay) {
    fill({riga("RB", "20060315", {{3, "1"}, {4, "2"}, {9, "3"}, {10, "4"}, {11, "5"}})});
    EXPECT_EQ(picture(3, 17), 0);
    EXPECT_EQ(total(1, Totale::scadenzeConcluse), 4);
    EXPECT_EQ(total(1, Totale::praticheConcluse), 6);
    EXPECT_EQ(total(1, Totale::altro), 5);
}

TEST_F(MensileFillTest, OfTwoRecordsOfOneDayTheLaterPictureStays) {
    fill({riga("RB", "20060315", {{1, "1"}}), riga("RB", "20060315", {{7, "1"}}),
          riga("RB", "20060315", {{9, "1"}})});
    EXPECT_EQ(picture(3, 17), 8);
}

TEST_F(MensileFillTest, TheCurrentCellIsTheFirstDataCell) {
    fill({});
    EXPECT_EQ(Flxm.Row(), 2);
    EXPECT_EQ(Flxm.Col(), 1);
}

TEST_F(MensileFillTest, TheFirstAndLastDayOfAMonthThatStartsOnSunday) {
    fill({riga("RB", "20061001", {{1, "1"}}), riga("RB", "20061031", {{1, "1"}})}, "20061015");
    EXPECT_EQ(picture(3, 7), 10);
    EXPECT_EQ(picture(3, 37), 10);
}

TEST_F(MensileFillTest, ARefillOfAnotherMonthNeedsItsHeader) {
    fill({riga("RB", "20060315", {{1, "1"}}), riga("RB", "20061001", {{1, "1"}})});
    bench.controlli.calendario.setValue(*makeDate(2006, 10, 15));
    bench.motore.PulisciGrid1();
    bench.motore.LeggiDati();
    bench.motore.showgrid();
    bench.motore.PopolaGrid1();
    EXPECT_EQ(picture(3, 7), 10);
    EXPECT_EQ(picture(3, 17), 0);
    EXPECT_EQ(Flxm.TextMatrix(0, 0), "Ottobre");
}

TEST_F(MensileFillTest, ClearingEmptiesTheDataRowsAndKeepsTheHeader) {
    fill({riga("RB", "20060315", {{1, "1"}})});
    bench.motore.PulisciGrid1();
    EXPECT_EQ(Flxm.Rows(), 15);
    EXPECT_EQ(Flxm.TextMatrix(1, 3), "1");
    for (int row = 2; row < 15; ++row) {
        for (int column = 0; column <= 37; ++column) {
            ASSERT_EQ(Flxm.cella(row, column), Cella{});
        }
    }
}

TEST_F(MensileFillTest, DataRowsAreHighWithDetailsAndLowWithout) {
    fill({});
    for (const bool detailed : {true, false}) {
        bench.controlli.Toolbar1.setDettagliato(detailed);
        bench.motore.PulisciGrid1();
        for (int row = 2; row < Flxm.Rows(); ++row) {
            EXPECT_EQ(Flxm.RowHeight(row), detailed ? 1200 : 300);
        }
        bench.controlli.Toolbar1.setDettagliato(!detailed);
        bench.motore.PopolaGrid1();
        EXPECT_EQ(Flxm.RowHeight(2), detailed ? 300 : 1200);
        EXPECT_EQ(Flxm.RowHeight(1), 300);
    }
}

} // namespace
} // namespace planner::test
