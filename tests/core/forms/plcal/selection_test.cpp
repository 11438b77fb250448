// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plcal_fixture.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::Each;
using testing::IsEmpty;

/// Bianchi (row 2), Rossi (row 3), Verdi (row 4), unassigned (row 5); March 2006 begins in column 3.
class SelectionTest : public PlcalFixture {
protected:
    static constexpr int Day15 = 17; // column
    static constexpr int SpareRow = 9;

    void SetUp() override {
        bench.putRighe(
            {riga("RB", "20060315", {{1, "00002"}, {5, "00001"}, {7, "00004"}, {8, "00005"}, {9, "00001"}}),
             riga("BI", "20060310", {{6, "00007"}, {10, "00006"}}), riga("ZZ", "20060301", {{2, "00009"}}),
             RigaPlanner{}});
    }

    void openMonth(std::string_view flag = " ") {
        sessione.FlagFinestra = flag;
        open("M");
    }

    std::string total(std::string_view nome) { return etichetta(form.pannello(), nome).testo; }
    bool shown(std::string_view nome) { return etichetta(form.pannello(), nome).visibile; }

    std::vector<Colore> backgrounds(const Griglia& griglia, int row) {
        std::vector<Colore> colours;
        for (int column = 1; column < griglia.Cols(); ++column) {
            colours.push_back(griglia.CellBackColor(row, column));
        }
        return colours;
    }
};

TEST_F(SelectionTest, SelectingARowMakesItsStaffMemberCurrentAndFillsThePanel) {
    openMonth();
    gesto(3, Day15);
    EXPECT_EQ(sessione.IndiceCollab.valore, 1);
    EXPECT_EQ(sessione.collab, "RB");
    EXPECT_EQ(form.pannello().lblcollab, "Impegni di Rossi Bruno");
    EXPECT_TRUE(form.pannello().lblcollabVisibile);
    EXPECT_EQ(total("Lblscad"), "3");
    EXPECT_EQ(total("lblpers"), "5");
    EXPECT_EQ(total("Lblnotes"), "4");
    EXPECT_EQ(total("Lblscadeva"), "1");
    for (const char* label : {"Lblscad", "Lblscadeva", "lblpra", "Lblpraeva", "lblpers", "Lblnotes"}) {
        EXPECT_TRUE(shown(label)) << label;
    }
}

TEST_F(SelectionTest, ATotalOfZeroIsAnEmptyLabelNotAZero) {
    openMonth();
    gesto(3, Day15);
    EXPECT_EQ(total("lblpra"), "");
    EXPECT_TRUE(shown("lblpra"));
    EXPECT_EQ(formatoTotale(0), "");
    EXPECT_EQ(formatoTotale(-3), "-3");
    EXPECT_EQ(formatoTotale(9999), "9999");
}

TEST_F(SelectionTest, ADayWithoutEntriesSelectsToo) {
    openMonth();
    gesto(2, 4); // 2 March
    EXPECT_EQ(sessione.collab, "BI");
    EXPECT_EQ(total("lblpra"), "7");
    EXPECT_EQ(total("Lblpraeva"), "6");
}

TEST_F(SelectionTest, AColumnOfNoDayHidesThePanelAndLeavesStaffMemberAndDay) {
    openMonth();
    gesto(3, Day15);
    gesto(2, 1); // before the month's first day
    EXPECT_FALSE(form.pannello().lblcollabVisibile);
    EXPECT_EQ(sessione.collab, "RB");
    EXPECT_EQ(controlli.calendario.Day(), 15);
    EXPECT_EQ(controlli.Flxm.CellBackColor(3, Day15), Colore::ciano);
}

TEST_F(SelectionTest, AMarkedCellFollowsTheDayThatASpareRowGives) {
    openMonth();
    gesto(3, Day15);
    gesto(SpareRow, Day15 + 1);
    EXPECT_EQ(controlli.calendario.Day(), 16);
    EXPECT_EQ(controlli.Flxm.CellBackColor(3, Day15), Colore::giallo);
    EXPECT_EQ(controlli.Flxm.CellBackColor(3, Day15 + 1), Colore::ciano);
}

TEST_F(SelectionTest, ANameSelectsItsStaffMemberOnTheShownDay) {
    openMonth();
    gesto(3, 0);
    EXPECT_EQ(sessione.collab, "RB");
    EXPECT_EQ(controlli.calendario.Day(), 15);
    EXPECT_EQ(controlli.Flxm.Row(), 3);
    EXPECT_EQ(controlli.Flxm.Col(), Day15);
    EXPECT_EQ(form.stato().find("Rossi Bruno, mercoledì 15 marzo 2006"), 0U);
}

TEST_F(SelectionTest, ASpareRowHidesThePanelAndLeavesTheStaffMemberAsItWas) {
    openMonth();
    gesto(3, Day15);
    gesto(SpareRow, Day15);
    EXPECT_EQ(sessione.IndiceCollab.valore, 1);
    EXPECT_EQ(sessione.collab, "RB");
    EXPECT_FALSE(form.pannello().lblcollabVisibile);
    for (const char* label : {"Lblscad", "Lblscadeva", "lblpra", "Lblpraeva", "lblpers", "Lblnotes"}) {
        EXPECT_FALSE(shown(label)) << label;
        EXPECT_EQ(total(label), "") << label;
    }
}

TEST_F(SelectionTest, TheUnassignedRowSelectsWithABlankCode) {
    openMonth();
    gesto(3, Day15);
    gesto(5, 3);
    EXPECT_EQ(sessione.IndiceCollab.valore, 3);
    EXPECT_EQ(sessione.collab, "  ");
    EXPECT_EQ(form.pannello().lblcollab, "Impegni di *NON ASSEGNATE*");
    EXPECT_EQ(total("lblpra"), "9");
}

TEST_F(SelectionTest, TheSelectedRowIsYellowAndItsCellCyan) {
    openMonth();
    gesto(3, Day15);
    auto expected = std::vector<Colore>(37, Colore::giallo);
    expected[Day15 - 1] = Colore::ciano;
    EXPECT_EQ(backgrounds(controlli.Flxm, 3), expected);
    EXPECT_EQ(controlli.Flxm.CellBackColor(3, 0), Colore::intestazione) << "the names keep their colours";
}

TEST_F(SelectionTest, ASecondRowPaintsTheFirstBackToLightYellow) {
    openMonth();
    gesto(3, Day15);
    gesto(2, 5);
    EXPECT_THAT(backgrounds(controlli.Flxm, 3), Each(Colore::gialloChiaro));
    EXPECT_EQ(controlli.Flxm.CellBackColor(2, 5), Colore::ciano);
    EXPECT_EQ(controlli.Flxm.CellBackColor(2, 6), Colore::giallo);
    EXPECT_EQ(controlli.Flxm.CellBackColor(3, 0), Colore::intestazione);
}

TEST_F(SelectionTest, MovingInsideTheHighlightedRowChangesTwoCellsOnly) {
    struct Counter : OsservatoreGriglia {
        void strutturaCambiata() override { ADD_FAILURE() << "the structure stays"; }
        void celleCambiate(const AreaCelle& changed, bool) override { area = changed; }
        AreaCelle area;
    } counter;
    openMonth();
    gesto(3, Day15);
    controlli.Flxm.setOsservatore(&counter);
    gesto(3, Day15 + 1);
    controlli.Flxm.setOsservatore(nullptr);
    EXPECT_EQ(counter.area.rigaMin, 3);
    EXPECT_EQ(counter.area.rigaMax, 3);
    EXPECT_EQ(counter.area.colonnaMin, Day15);
    EXPECT_EQ(counter.area.colonnaMax, Day15 + 1);
    EXPECT_EQ(controlli.Flxm.CellBackColor(3, Day15), Colore::giallo);
}

TEST_F(SelectionTest, InVariantBTheDeadlinesNeverShow) {
    openMonth("B");
    gesto(3, Day15);
    EXPECT_FALSE(shown("Lblscad"));
    EXPECT_FALSE(shown("Lblscadeva"));
    EXPECT_EQ(total("Lblscad"), "");
    EXPECT_TRUE(shown("lblpra"));
    EXPECT_EQ(total("lblpers"), "5");
}

TEST_F(SelectionTest, AClickMovesTheCalendarToTheDay) {
    openMonth();
    gesto(3, 3);
    EXPECT_EQ(controlli.calendario.Day(), 1);
    gesto(3, 33);
    EXPECT_EQ(controlli.calendario.Day(), 31);
    gesto(3, 34); // after the month's last day
    gesto(3, 2);  // before its first
    EXPECT_EQ(formatDate(controlli.calendario.Value()), "20060331");
}

TEST_F(SelectionTest, AMonthWhoseFirstDayFallsOnTheFourthColumnMapsColumn4ToDay1) {
    bench.putAnnuale(annoPlanner("2006"));
    sessione.FlagFinestra = " ";
    open("M", "20060615"); // 1 June 2006 is a Thursday
    gesto(2, 4);
    EXPECT_EQ(formatDate(controlli.calendario.Value()), "20060601");
}

TEST_F(SelectionTest, AMonthThatStartsOnSundayMapsColumn7ToDay1) {
    open("M", "20061015");
    gesto(2, 7);
    EXPECT_EQ(formatDate(controlli.calendario.Value()), "20061001");
    gesto(2, 37);
    EXPECT_EQ(formatDate(controlli.calendario.Value()), "20061031");
}

TEST_F(SelectionTest, EveryMeansMovesTheCalendar) {
    openMonth();
    int day = 0;
    for (const DescrizioneMezzo& described : Mezzi) {
        ++day;
        gesto(3, 2 + day, described.mezzo);
        EXPECT_EQ(controlli.calendario.Day(), day) << described.nome;
    }
}

TEST_F(SelectionTest, TheDailyGridSelectsByRowLessOneAndKeepsTheSelectedIndex) {
    open("G");
    gesto(2, 40);
    EXPECT_EQ(sessione.collab, "RB");
    EXPECT_EQ(sessione.IndiceCollab.valore, -1);
    EXPECT_EQ(total("Lblscad"), "3");
    EXPECT_EQ(controlli.flxg.CellBackColor(2, 1), Colore::giallo);
    EXPECT_EQ(controlli.flxg.CellBackColor(2, 40), Colore::ciano);
    EXPECT_EQ(formatDate(controlli.calendario.Value()), "20060315");
}

TEST_F(SelectionTest, AStaffMemberBeyondTheTotalsIsSelectedWithoutAMessage) {
    bench.putRighe({riga("7 ", "20060310", {{1, "00001"}})}); // totals for indices 0 and 1 only
    openMonth();
    gesto(4, 12);
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
    EXPECT_EQ(sessione.collab, "7 ");
    EXPECT_TRUE(shown("Lblscad"));
    EXPECT_EQ(total("Lblscad"), "");
    EXPECT_EQ(form.stato(), "Verdi Ugo, venerdì 10 marzo 2006: 1 scadenza");
    form.Toolbar1_ButtonClick("consult");
    EXPECT_EQ(sessione.valret, "200603107 D") << "there is something to consult all the same";
}

TEST_F(SelectionTest, CellsOutsideTheDataAreIgnored) {
    openMonth();
    for (const auto& [row, column] : {std::pair{0, 3}, {1, 3}, {0, 0}, {-1, -1}, {1000, 3}, {3, 1000}}) {
        gesto(row, column);
        gesto(row, column);
        gesto(row, column, Mezzo::frecce);
    }
    EXPECT_EQ(sessione.IndiceCollab.valore, -1);
    EXPECT_EQ(formatDate(controlli.calendario.Value()), "20060315");
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
}

/// The yearly grid of 2006: 15 March stands in row 3, column 17.
class YearlySelectionTest : public PlcalFixture {
protected:
    static constexpr std::string_view Numeri = "00010002000300040010002000070008003000400011";

    void SetUp() override {
        auto mesi = annoPlanner("2006", {{3, 17}, {1, 8}});
        mesi[2].testi[16].assign(Numeri);
        mesi[2].testi[17].assign(Numeri); // unmarked
        bench.putAnnuale(mesi);
        open("A");
    }
    std::string total(std::string_view nome) { return etichetta(form.pannello(), nome).testo; }
};

TEST_F(YearlySelectionTest, AMarkedDayShowsItsElevenNumbersInSevenTotals) {
    gesto(3, 17);
    EXPECT_EQ(total("scad"), "11");  // 1 + 10
    EXPECT_EQ(total("scaev"), "33"); // 3 + 30
    EXPECT_EQ(total("prat"), "22");  // 2 + 20
    EXPECT_EQ(total("praev"), "44"); // 4 + 40
    EXPECT_EQ(total("nriv"), "8");
    EXPECT_EQ(total("bnot"), "7");
    EXPECT_EQ(total("blkev"), "11");
}

TEST_F(YearlySelectionTest, AnUnmarkedDayEmptiesThePanel) {
    gesto(3, 17);
    gesto(3, 18);
    for (const char* label : {"scad", "scaev", "prat", "praev", "nriv", "bnot", "blkev"}) {
        EXPECT_EQ(total(label), "") << label;
    }
}

TEST_F(YearlySelectionTest, TheMarkedDayIsCyanWithBlackTextAndThePreviousOneGetsItsColoursBack) {
    gesto(3, 17);
    EXPECT_EQ(controlli.flxa.CellBackColor(3, 17), Colore::ciano);
    EXPECT_EQ(controlli.flxa.CellForeColor(3, 17), Colore::nero);
    gesto(1, 8);
    EXPECT_EQ(controlli.flxa.CellBackColor(3, 17), Colore::navy);
    EXPECT_EQ(controlli.flxa.CellForeColor(3, 17), Colore::bianco);
    EXPECT_EQ(controlli.flxa.CellBackColor(1, 8), Colore::ciano);
    gesto(3, 17);
    EXPECT_EQ(controlli.flxa.CellBackColor(1, 8), Colore::navy) << "January's days get them back too";
}

TEST_F(YearlySelectionTest, ADayWithoutEntriesLeavesNoOtherDayMarked) {
    gesto(3, 17);
    gesto(3, 18);
    EXPECT_EQ(controlli.flxa.CellBackColor(3, 17), Colore::navy);
    EXPECT_EQ(controlli.flxa.CellBackColor(3, 18), Colore::grigioChiaro);
}

TEST_F(YearlySelectionTest, TheNameOfAMonthMovesNothing) {
    gesto(5, 0);
    EXPECT_EQ(formatDate(controlli.calendario.Value()), "20060315");
    EXPECT_EQ(controlli.flxa.Row(), 0) << "the window places the cursor when it is shown";
}

TEST_F(YearlySelectionTest, AClickMovesTheCalendarToTheDayWrittenInTheCell) {
    gesto(5, 1); // 1 May 2006 is a Monday
    EXPECT_EQ(formatDate(controlli.calendario.Value()), "20060501");
    gesto(2, 1); // no day of February
    EXPECT_EQ(formatDate(controlli.calendario.Value()), "20060501");
}

TEST_F(YearlySelectionTest, ArrowKeysMoveTheCalendarOnlyOnceThePlannerHasStarted) {
    gesto(5, 1, Mezzo::frecce);
    EXPECT_EQ(formatDate(controlli.calendario.Value()), "20060501");
    sessione.CalendarioAttivo = false;
    gesto(3, 17, Mezzo::frecce);
    EXPECT_EQ(formatDate(controlli.calendario.Value()), "20060501");
}

TEST_F(YearlySelectionTest, SelectingChangesNeitherStaffMemberNorRowColours) {
    gesto(3, 17);
    EXPECT_EQ(sessione.collab, "  ");
    EXPECT_EQ(controlli.flxa.CellBackColor(3, 16), Colore::grigioChiaro);
}

} // namespace
} // namespace planner::test
