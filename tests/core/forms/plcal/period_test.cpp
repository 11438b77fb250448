// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plcal_fixture.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::IsEmpty;

class PeriodTest : public PlcalFixture {
protected:
    void openPeriod(std::string_view tipo, std::string_view giorno, const char* first, const char* last) {
        sessione.PathArchivi = PlannerBench::Cartella;
        makeEngine()->Init_planner(std::string(tipo) + std::string(giorno), first, last, "  ");
    }
    std::string shown() { return formatDate(controlli.calendario.Value()); }
    std::string header() {
        return std::string(controlli.Flxm.TextMatrix(0, 0)) + " " +
               std::string(controlli.Flxm.TextMatrix(1, 0));
    }
};

TEST_F(PeriodTest, NextMonthMovesCalendarHeaderTitleAndEntries) {
    bench.putRighe({riga("RB", "20060412", {{1, "00001"}}), RigaPlanner{}, RigaPlanner{}, RigaPlanner{}});
    open("M");
    form.bselm_Click(1);
    EXPECT_EQ(shown(), "20060415");
    EXPECT_EQ(controlli.lbldescr, "Mese di Aprile 2006");
    EXPECT_EQ(header(), "Aprile 2006");
    EXPECT_EQ(controlli.Flxm.TextMatrix(1, 6), "1") << "1 April 2006 is a Saturday";
    EXPECT_EQ(controlli.Flxm.TextMatrix(1, 36), "");
    EXPECT_NE(controlli.Flxm.cella(3, 17).immagine, 0);
    EXPECT_EQ(formatDate(controlli.DataSessione()), "20060415");
}

TEST_F(PeriodTest, TheArchiveIsReadAgainWithEachMonth) {
    open("M");
    bench.putRighe({riga("RB", "20060412", {{1, "00001"}}), RigaPlanner{}, RigaPlanner{}, RigaPlanner{}});
    form.bselm_Click(1);
    EXPECT_NE(controlli.Flxm.cella(3, 17).immagine, 0);
}

TEST_F(PeriodTest, AtThePeriodsEndNothingMoves) {
    open("M", "20061215");
    form.bselm_Click(1);
    EXPECT_EQ(shown(), "20061215");
    EXPECT_EQ(controlli.lbldescr, "Mese di Dicembre 2006");
    open("M", "20060115");
    form.bselm_Click(0);
    EXPECT_EQ(shown(), "20060115");
}

TEST_F(PeriodTest, YearButtonsMoveInAPeriodOfTwoYearsOnly) {
    open("M");
    form.bselm_Click(3);
    EXPECT_EQ(shown(), "20060315");
    openPeriod("M", "20060315", "20060101", "20071231");
    form.bselm_Click(3);
    EXPECT_EQ(shown(), "20070315");
    EXPECT_EQ(header(), "Marzo 2007");
    form.bselm_Click(2);
    EXPECT_EQ(shown(), "20060315");
}

TEST_F(PeriodTest, MovingIntoTheNextYearWithdrawsAComposedReply) {
    openPeriod("M", "20061215", "20060101", "20071231");
    sessione.valret = "20061215RBD";
    sessione.FinePlanner = true;
    form.bselm_Click(1);
    EXPECT_EQ(shown(), "20070115");
    EXPECT_THAT(sessione.valret, IsEmpty());
    EXPECT_FALSE(sessione.FinePlanner);
}

TEST_F(PeriodTest, AMoveInsideTheYearKeepsAComposedReply) {
    open("M");
    sessione.valret = "20060315RBD";
    form.bselm_Click(1);
    EXPECT_EQ(sessione.valret, "20060315RBD");
}

TEST_F(PeriodTest, FebruaryOfALeapYearShows29Days) {
    openPeriod("M", "20040131", "20040101", "20041231");
    form.bselm_Click(1);
    EXPECT_EQ(shown(), "20040229");
    EXPECT_EQ(controlli.Flxm.TextMatrix(1, 7), "1");
    EXPECT_EQ(controlli.Flxm.TextMatrix(1, 35), "29");
}

TEST_F(PeriodTest, AMoveHidesThePanelAndKeepsTheStaffMemberAndItsHighlight) {
    open("M");
    gesto(3, 17);
    form.bselm_Click(1);
    EXPECT_FALSE(form.pannello().lblcollabVisibile);
    EXPECT_FALSE(etichetta(form.pannello(), "lblpra").visibile);
    EXPECT_EQ(sessione.IndiceCollab.valore, 1);
    EXPECT_EQ(sessione.collab, "RB");
    EXPECT_EQ(controlli.Flxm.CellBackColor(3, 1), Colore::giallo);
    EXPECT_EQ(controlli.Flxm.Row(), 3);
    EXPECT_EQ(controlli.Flxm.Col(), 20) << "the cell of 15 April";
    EXPECT_EQ(controlli.Flxm.CellBackColor(3, 20), Colore::ciano);
}

TEST_F(PeriodTest, WithoutASelectionAMoveHighlightsNothing) {
    open("M");
    form.bselm_Click(1);
    EXPECT_EQ(controlli.Flxm.CellBackColor(2, 1), Colore::gialloChiaro);
    EXPECT_EQ(controlli.Flxm.Row(), 2);
    EXPECT_EQ(controlli.Flxm.Col(), 20) << "the cell of 15 April";
}

TEST_F(PeriodTest, TheDailyGridMovesByDaysWithinThePeriod) {
    openPeriod("G", "20060228", "20060227", "20060301");
    form.bselg_Click(2);
    EXPECT_EQ(shown(), "20060301");
    EXPECT_EQ(controlli.flxg.TextMatrix(0, 0), "01/03/2006");
    form.bselg_Click(2);
    EXPECT_EQ(shown(), "20060301");
    form.bselg_Click(1);
    form.bselg_Click(1);
    form.bselg_Click(1);
    EXPECT_EQ(shown(), "20060227");
    EXPECT_EQ(controlli.lbldescr, "Dal 27 Febbraio 2006 al 1 Marzo 2006");
}

TEST_F(PeriodTest, TheDailyMoveDoesNotReadTheArchiveAgain) {
    open("G");
    bench.putRighe({riga("RB", "20060316", {{1, "00001"}}), RigaPlanner{}, RigaPlanner{}, RigaPlanner{}});
    form.bselg_Click(2);
    EXPECT_EQ(controlli.flxg.cella(2, 0).immagine, 0);
}

TEST_F(PeriodTest, YearlyButtonsReplyPAndS) {
    open("A", "20060605");
    sessione.collab = "RB";
    form.bselA_Click(1);
    EXPECT_EQ(sessione.valret, "20060605RBP");
    EXPECT_TRUE(sessione.FinePlanner);
    form.bselA_Click(2);
    EXPECT_EQ(sessione.valret, "20060605RBS");
}

TEST_F(PeriodTest, OtherIndexesOfTheGroupsDoNothing) {
    open("A", "20060605");
    for (const int index : {-1, 0, 3, 99}) {
        form.bselA_Click(index);
    }
    EXPECT_THAT(sessione.valret, IsEmpty());
    open("M");
    for (const int index : {-1, 4, 99}) {
        form.bselm_Click(index);
    }
    open("G");
    for (const int index : {-1, 0, 3, 99}) {
        form.bselg_Click(index);
    }
    EXPECT_EQ(shown(), "20060315");
}

TEST_F(PeriodTest, AButtonThatWouldDoNothingIsInactive) {
    open("M", "20061215");
    const auto active = [&](std::string_view group, int index) {
        for (const PulsantePeriodo& button : PulsantiPeriodo) {
            if (button.gruppo == group && button.indice == index) {
                return form.pulsantePeriodoAttivo(button);
            }
        }
        return false;
    };
    EXPECT_TRUE(active("bselm", 0));
    EXPECT_FALSE(active("bselm", 1));
    EXPECT_FALSE(active("bselm", 2));
    EXPECT_TRUE(active("bselA", 1));
}

TEST_F(PeriodTest, ADayPickedInTheCalendarIsShown) {
    open("M");
    form.calendario_DateClick(parseDate("20060320").value());
    EXPECT_EQ(shown(), "20060320");
    form.calendario_DateClick(parseDate("20060502").value());
    EXPECT_EQ(shown(), "20060502");
    EXPECT_EQ(header(), "Maggio 2006");
    form.calendario_DateClick(parseDate("20070502").value());
    EXPECT_EQ(shown(), "20060502") << "outside the period";
}

TEST_F(PeriodTest, AMissingArchiveDuringAMoveIsSaidAndTheMonthMovesAllTheSame) {
    open("M");
    bench.files.remove(PlannerBench::path(FileRighe));
    bench.messaggi.shown.clear();
    form.bselm_Click(1);
    ASSERT_EQ(bench.messaggi.shown.size(), 1U);
    EXPECT_EQ(bench.messaggi.shown[0].text, "Errore su File :C:\\arch\\wrighipl");
    EXPECT_EQ(header(), "Aprile 2006");
}

} // namespace
} // namespace planner::test
