// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plcal_fixture.h"
#include "support/griglia_text.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class PlcalRefreshTest : public PlcalFixture {
protected:
    PlcalRefreshTest() {
        bench.putRighe({conOrario(riga("RB", "20060315", {{1, "1"}}), "09", "00", "0000100"), RigaPlanner{}});
    }
};

TEST_F(PlcalRefreshTest, TheLevelOfDetailFollowsTheButtons) {
    open("M");
    controlli.Toolbar1.setDettagliato(false);
    form.refreshGrid();
    EXPECT_EQ(sessione.LivelloDettaglio, 1);
    form.Toolbar1_ButtonClick("dettsi");
    EXPECT_EQ(sessione.LivelloDettaglio, 4);
    form.Toolbar1_ButtonClick("dettno");
    EXPECT_EQ(sessione.LivelloDettaglio, 1);
}

TEST_F(PlcalRefreshTest, TheMonthlyGridIsRefilledInItsForm) {
    open("M");
    EXPECT_EQ(controlli.Flxm.cella(3, 17).immagine, 10);
    form.Toolbar1_ButtonClick("dettno");
    EXPECT_EQ(controlli.Flxm.cella(3, 17).immagine, 16);
    EXPECT_EQ(controlli.Flxm.RowHeight(3), 300);
    form.Toolbar1_ButtonClick("dettsi");
    EXPECT_EQ(controlli.Flxm.cella(3, 17).immagine, 10);
    EXPECT_EQ(controlli.Flxm.RowHeight(3), 1200);
    EXPECT_EQ(controlli.Flxm.TextMatrix(3, 0), "Rossi Bruno");
    EXPECT_THAT(bench.journal, ElementsAre("update", "update"));
}

TEST_F(PlcalRefreshTest, TheDailyGridIsRefilledInItsForm) {
    open("G");
    form.Toolbar1_ButtonClick("dettno");
    EXPECT_EQ(elencoRiga(controlli.flxg, 2), "0 \"Rossi Bruno\" | 37 #16= | 38-40 =");
    form.Toolbar1_ButtonClick("dettsi");
    EXPECT_EQ(elencoRiga(controlli.flxg, 2), "0 \"Rossi Bruno\" | 37 #10= | 38-40 =");
}

TEST_F(PlcalRefreshTest, DettnoThenDettsiReturnsTheToolbarToItsFirstState) {
    open("M");
    form.Toolbar1_ButtonClick("dettno");
    EXPECT_TRUE(controlli.Toolbar1.visible(Pulsante::dettsi));
    EXPECT_FALSE(controlli.Toolbar1.visible(Pulsante::dettno));
    form.Toolbar1_ButtonClick("dettsi");
    EXPECT_TRUE(controlli.Toolbar1.visible(Pulsante::dettno));
    EXPECT_TRUE(controlli.Toolbar1.enabled(Pulsante::dettno));
    EXPECT_FALSE(controlli.Toolbar1.visible(Pulsante::dettsi));
    EXPECT_FALSE(controlli.Toolbar1.enabled(Pulsante::dettsi));
}

TEST_F(PlcalRefreshTest, FiveStaffMembersGive17MonthlyAnd16DailyRows) {
    bench.putCollaboratori(std::vector<Collaboratore>(5, collaboratore("XX", "x")));
    open("M");
    controlli.Flxm.setRows(40);
    form.refreshGrid();
    EXPECT_EQ(controlli.Flxm.Rows(), 17);
    open("G");
    controlli.flxg.setRows(3);
    form.refreshGrid();
    EXPECT_EQ(controlli.flxg.Rows(), 16);
}

TEST_F(PlcalRefreshTest, InTheYearlyPlannerTheGridStaysAsItIs) {
    bench.putAnnuale(annoPlanner("2006", {{3, 10}}));
    open("A");
    const std::string before = tabella(controlli.flxa);
    const std::string title = controlli.lbldescr;
    form.refreshGrid();
    EXPECT_EQ(tabella(controlli.flxa), before);
    EXPECT_EQ(controlli.lbldescr, title);
}

TEST_F(PlcalRefreshTest, WithoutAGridNothingIsRefilled) {
    open("?");
    bench.messaggi.shown.clear();
    form.refreshGrid();
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
}

TEST_F(PlcalRefreshTest, ARefreshDoesNotReadTheArchivesAgain) {
    open("M");
    bench.files.remove(PlannerBench::path(FileRighe));
    bench.files.remove(PlannerBench::path(FileCollaboratori));
    form.refreshGrid();
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
    EXPECT_EQ(controlli.Flxm.cella(3, 17).immagine, 10);
}

TEST_F(PlcalRefreshTest, ARefreshKeepsTheShownDay) {
    for (const char* tipo : {"M", "G", "A"}) {
        open(tipo, "20060331");
        form.refreshGrid();
        EXPECT_EQ(controlli.calendario.testoRisposta(), "20060331") << tipo;
    }
}

TEST_F(PlcalRefreshTest, ARecordThatCannotBeShownIsSaidAndThePlannerGoesOn) {
    open("M");
    sessione.archivi.RighePlanner.front().giorno.assign("32");
    form.refreshGrid();
    ASSERT_THAT(bench.messaggi.shown, SizeIs(1));
    EXPECT_EQ(bench.messaggi.shown[0].icon, MessageIcon::Critical);
    EXPECT_EQ(bench.messaggi.shown[0].title, "Planner");
    EXPECT_EQ(bench.journal.back(), "update");
}

TEST_F(PlcalRefreshTest, AFailureOfTheFillIsSaidAndThePlannerGoesOn) {
    open("M");
    for (int column = 1; column <= ColonneGiorni; ++column) {
        controlli.Flxm.setCaption(1, column, Ruolo::casella, ""); // no first day to be found
    }
    form.refreshGrid();
    ASSERT_THAT(bench.messaggi.shown, SizeIs(1));
    EXPECT_EQ(bench.messaggi.shown[0].text,
              "Operazione non riuscita: un indice è fuori dai limiti della tabella.");
    EXPECT_EQ(bench.journal.back(), "update");
}

} // namespace
} // namespace planner::test
