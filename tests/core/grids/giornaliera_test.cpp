// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "grids/giornaliera.h"
#include "support/griglia_text.h"
#include "support/planner_bench.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

/// 15 March 2006; Bianchi, Rossi, Verdi in rows 1 to 3, the unassigned in row 4.
class GiornalieraTest : public testing::Test {
protected:
    void fill(const std::vector<RigaPlanner>& righe, std::string_view giorno = "20060315") {
        bench.putRighe(righe);
        bench.init("G", giorno);
    }
    /// A case-file entry (picture 11) of Rossi, and the row that it makes.
    std::string rowOf(std::string_view ora, std::string_view minuto, std::string_view durata) {
        fill({conOrario(riga("RB", "20060315", {{2, "1"}}), ora, minuto, durata), RigaPlanner{}});
        return elencoRiga(flxg, 2);
    }

    PlannerBench bench;
    const Griglia& flxg = bench.controlli.flxg;
};

TEST_F(GiornalieraTest, HoursAreBoldAndMinutesSmall) {
    fill({});
    for (int column = 1; column <= 96; ++column) {
        const int quarter = (column - 1) % 4;
        const int hour = (column - 1) / 4;
        EXPECT_EQ(flxg.TextMatrix(0, column), std::to_string(quarter == 0 ? hour : quarter * 15)) << column;
        EXPECT_EQ(stile(flxg.cella(0, column)).carattere, quarter == 0 ? Carattere::ora : Carattere::minuti);
        EXPECT_EQ(flxg.CellForeColor(0, column), Colore::navy);
        EXPECT_EQ(flxg.ColWidth(column), 350);
    }
    EXPECT_EQ(flxg.ColWidth(0), 2377);
}

TEST_F(GiornalieraTest, TheCornerShowsTheDayBoldAndNavy) {
    fill({}, "20060305");
    EXPECT_EQ(flxg.TextMatrix(0, 0), "05/03/2006");
    EXPECT_EQ(flxg.CellForeColor(0, 0), Colore::navy);
    EXPECT_TRUE(carattere(stile(flxg.cella(0, 0)).carattere).grassetto);
}

TEST_F(GiornalieraTest, NamesStartInRow1AndTheUnassignedFollow) {
    fill({});
    EXPECT_EQ(flxg.TextMatrix(1, 0), "Bianchi Rosa");
    EXPECT_EQ(flxg.TextMatrix(3, 0), "Verdi Ugo");
    EXPECT_EQ(flxg.TextMatrix(4, 0), "*NON ASSEGNATE*");
    EXPECT_EQ(flxg.TextMatrix(5, 0), "");
    EXPECT_EQ(flxg.Rows(), 14);
}

TEST_F(GiornalieraTest, AnEntryCoversTheColumnsOfItsQuarters) {
    EXPECT_EQ(rowOf("09", "30", "0000115"), "0 \"Rossi Bruno\" | 39 #11= | 40-43 =");
}

TEST_F(GiornalieraTest, AnEntryAtMidnightStartsInColumn1) {
    EXPECT_EQ(rowOf("00", "00", "0000100"), "0 \"Rossi Bruno\" | 1 #11= | 2-4 =");
}

TEST_F(GiornalieraTest, AnEntryThatRunsPastMidnightIsCutAtColumn96) {
    EXPECT_EQ(rowOf("23", "45", "0000300"), "0 \"Rossi Bruno\" | 96 #11=");
    EXPECT_EQ(rowOf("22", "00", "0054600"), "0 \"Rossi Bruno\" | 89 #11= | 90-96 =");
}

TEST_F(GiornalieraTest, AnEntryCoversAtLeastOneQuarter) {
    EXPECT_EQ(rowOf("09", "00", "0000000"), "0 \"Rossi Bruno\" | 37 #11=");
    EXPECT_EQ(rowOf("09", "00", "       "), "0 \"Rossi Bruno\" | 37 #11=");
    EXPECT_EQ(rowOf("09", "00", "-000100"), "0 \"Rossi Bruno\" | 37 #11=");
}

TEST_F(GiornalieraTest, TheFirstColumnIsTheQuarterThatTheStartFallsIn) {
    const std::vector<std::tuple<std::string_view, std::string_view, int>> table{
        {"00", "00", 1},  {"00", "14", 1},  {"00", "15", 2},  {"00", "59", 4}, {"08", "00", 33},
        {"8 ", "0 ", 33}, {" 8", " 5", 33}, {"23", "44", 95}, {"23", "59", 96}};
    for (const auto& [hour, minute, first] : table) {
        const auto columns = colonneImpegno(conOrario(RigaPlanner{}, hour, minute, "0000015"));
        EXPECT_EQ(columns.prima, first) << hour << ":" << minute;
        EXPECT_EQ(columns.ultima, first);
    }
}

TEST_F(GiornalieraTest, AMinuteThatIsNoneCountsAsTheFullHour) {
    for (const std::string_view minute : {"  ", "60", "99", "xx", "-5"}) {
        EXPECT_EQ(colonneImpegno(conOrario(RigaPlanner{}, "09", minute, "0000015")).prima, 37) << minute;
    }
}

TEST_F(GiornalieraTest, AnEntryWithoutValidStartHourHasItsPictureBesideTheName) {
    for (const std::string_view hour : {"  ", "24", "99", "-1", "xx", "1x", "\xFF\xFF"}) {
        EXPECT_EQ(rowOf(hour, "30", "0000115"), "0 \"Rossi Bruno\"#11") << hour;
    }
}

TEST_F(GiornalieraTest, AnEntryOfConcludedWorkOnlyHasNoPictureButItsColour) {
    fill({conOrario(riga("RB", "20060315", {{9, "1"}}), "09", "00", "0000030"), RigaPlanner{}});
    EXPECT_EQ(elencoRiga(flxg, 2), "0 \"Rossi Bruno\" | 37-38 =");
    EXPECT_EQ(bench.sessione.TotaliImpegni.at({1}, Totale::scadenzeConcluse), 1);
}

TEST_F(GiornalieraTest, ThePictureIsChosenAsInTheMonthlyGrid) {
    fill({conOrario(riga("RB", "20060315", {{7, "1"}, {8, "1"}, {1, "1"}}), "09", "00", "0000015"),
          RigaPlanner{}});
    EXPECT_EQ(flxg.cella(2, 37).immagine, 2);
    bench.controlli.Toolbar1.setDettagliato(false);
    bench.motore.PulisciGrid2();
    bench.motore.PopolaGrid2();
    EXPECT_EQ(flxg.cella(2, 37).immagine, 16);
}

TEST_F(GiornalieraTest, OnlyRecordsOfTheShownDayAreTaken) {
    fill({conOrario(riga("RB", "20060314", {{1, "1"}}), "09", "00", "0000100"),
          conOrario(riga("RB", "20060415", {{1, "1"}}), "09", "00", "0000100"),
          conOrario(riga("RB", "20050315", {{1, "1"}}), "09", "00", "0000100")});
    EXPECT_EQ(elencoRiga(flxg, 2), "0 \"Rossi Bruno\"");
    EXPECT_EQ(bench.sessione.TotaliImpegni.at({1}, Totale::scadenze), 0);
}

TEST_F(GiornalieraTest, TotalsAreByRowLessOne) {
    fill({conOrario(riga("RB", "20060315", {{1, "2"}}), "09", "00", "0000100"),
          conOrario(riga("RB", "20060315", {{5, "3"}}), "15", "00", "0000100"),
          riga("BI", "20060315", {{2, "1"}}), riga("ZZ", "20060315", {{8, "4"}})});
    EXPECT_EQ(bench.sessione.TotaliImpegni.at({2 - 1}, Totale::scadenze), 5);
    EXPECT_EQ(bench.sessione.TotaliImpegni.at({1 - 1}, Totale::pratiche), 1);
    EXPECT_EQ(bench.sessione.TotaliImpegni.at({4 - 1}, Totale::impegniVari), 4);
}

TEST_F(GiornalieraTest, ARowShowsAllItsEntries) {
    fill({conOrario(riga("RB", "20060315", {{1, "1"}}), "09", "00", "0000030"),
          conOrario(riga("RB", "20060315", {{7, "1"}}), "10", "00", "0000030"),
          riga("RB", "20060315", {{8, "1"}})});
    EXPECT_EQ(elencoRiga(flxg, 2), "0 \"Rossi Bruno\"#9 | 37 #10= | 38 = | 41 #8= | 42 =");
}

TEST_F(GiornalieraTest, AnUnknownStaffCodeIsShownAsUnassigned) {
    fill(
        {conOrario(riga("ZZ", "20060315", {{1, "1"}}), "09", "00", "0000015"), RigaPlanner{}, RigaPlanner{}});
    EXPECT_EQ(elencoRiga(flxg, 4), "0 \"*NON ASSEGNATE*\" | 37 #10=");
}

TEST_F(GiornalieraTest, ClearingEmptiesTheDataRowsAndKeepsTheHeader) {
    fill({conOrario(riga("RB", "20060315", {{1, "1"}}), "09", "00", "0000100"), RigaPlanner{}});
    bench.motore.PulisciGrid2();
    EXPECT_EQ(flxg.Rows(), 14);
    EXPECT_EQ(flxg.TextMatrix(0, 5), "1");
    for (int row = 1; row < 14; ++row) {
        EXPECT_EQ(elencoRiga(flxg, row), "");
        EXPECT_EQ(flxg.RowHeight(row), 1200);
    }
    bench.controlli.Toolbar1.setDettagliato(false);
    bench.motore.PulisciGrid2();
    EXPECT_EQ(flxg.RowHeight(1), 300);
}

TEST_F(GiornalieraTest, AFillSetsTheWeekdayOfTheShownMonth) {
    bench.init("G", "20060315");
    bench.controlli.calendario.setValue(*makeDate(2006, 10, 20));
    bench.motore.PopolaGrid2();
    EXPECT_EQ(bench.controlli.PrimoGiornoSettimana(), 1);
    EXPECT_EQ(bench.controlli.calendario.testoRisposta(), "20061020");
}

} // namespace
} // namespace planner::test
