// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plcal_fixture.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ChartCommandTest : public PlcalFixture {
protected:
    void SetUp() override {
        bench.putRighe({RigaPlanner{}, RigaPlanner{}, RigaPlanner{}});
        bench.putGrafici(
            {rigaGrafico("RB", "20060315", "0007:30"), rigaGrafico("BI", "20060315", "0004:00")});
    }
    void press() { form.Toolbar1_ButtonClick("grafici"); }
    const std::vector<Grafico>& shown() { return finestraGrafici.shown; }
};

TEST_F(ChartCommandTest, TheMonthlyPlannerAsksForAStaffMemberAndOpensNoChart) {
    open("M");
    press();
    EXPECT_THAT(bench.messaggi.shown,
                ElementsAre(Message{MessageIcon::Information, "Planner",
                                    "Selezionare un collaboratore prima di visualizzare il grafico."}));
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(ChartCommandTest, TheMonthlyChartIsThatOfTheSelectedStaffMember) {
    open("M");
    gesto(3, 15); // Rossi
    press();
    ASSERT_THAT(shown(), SizeIs(1));
    EXPECT_EQ(shown().front().TitleText, "Planner Mensile");
    EXPECT_EQ(shown().front().serie.front().etichetta, "Rossi Bruno");
    EXPECT_EQ(shown().front().valore(14), 7.5);
}

TEST_F(ChartCommandTest, TheMonthlyChartIsThatOfTheShownMonth) {
    open("M", "20060415");
    gesto(3, 15);
    press();
    ASSERT_THAT(shown(), SizeIs(1));
    EXPECT_THAT(shown().front().serie.front().valori, testing::Each(0));
}

TEST_F(ChartCommandTest, TheDailyChartNeedsNoSelectionAndNamesEntryOne) {
    open("G");
    press();
    ASSERT_THAT(shown(), SizeIs(1));
    EXPECT_EQ(shown().front().TitleText, "Planner Giornaliero");
    EXPECT_EQ(shown().front().serie.front().etichetta, "Rossi Bruno");
    EXPECT_THAT(shown().front().serie.front().valori, ElementsAre(4, 7.5, 0));
}

TEST_F(ChartCommandTest, TheDailyChartOfAnOfficeWithoutStaffIsAnErrorThatIsSaid) {
    bench.putCollaboratori({});
    open("G");
    bench.messaggi.shown.clear();
    press();
    ASSERT_THAT(bench.messaggi.shown, SizeIs(1));
    EXPECT_EQ(bench.messaggi.shown.front().icon, MessageIcon::Critical);
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(ChartCommandTest, HoursThatCouldNotBeReadAreSaidByTheChartUntilTheyCan) {
    open("G");
    press();
    EXPECT_EQ(shown().back().avviso, "");
    bench.files.remove(PlannerBench::path(FileGrafici));
    press();
    ASSERT_THAT(shown(), SizeIs(2));
    EXPECT_EQ(shown().back().avviso, "Dati non aggiornati: wgrafici non si legge. ");
    EXPECT_THAT(shown().back().serie.front().valori, ElementsAre(4, 7.5, 0)) << "what there is";
    bench.putGrafici({rigaGrafico("RB", "20060315", "0001:00")});
    press();
    EXPECT_EQ(shown().back().avviso, "");
}

TEST_F(ChartCommandTest, AStaffListThatCouldNotBeReadIsSaidByTheChart) {
    open("G");
    bench.sessione.letture.collaboratori = false;
    press();
    EXPECT_EQ(shown().back().avviso, "Dati non aggiornati: wcollab non si legge. ");
}

TEST_F(ChartCommandTest, TheYearlyChartNeedsNoSelection) {
    open("A");
    press();
    ASSERT_THAT(shown(), SizeIs(1));
    EXPECT_EQ(shown().front().TitleText, "Planner Annuale");
    EXPECT_EQ(shown().front().valore(2), 4) << "March's last record";
}

TEST_F(ChartCommandTest, TheChartsDataAreReadAnewEachTime) {
    open("A");
    press();
    bench.putGrafici({rigaGrafico("RB", "20060331", "0160:00")});
    press();
    ASSERT_THAT(shown(), SizeIs(2));
    EXPECT_EQ(shown().back().valore(2), 160);
}

TEST_F(ChartCommandTest, AMissingFileIsSaidAndTheChartIsEmptyWithAnEmptyTitle) {
    open("A");
    bench.files.deleteFile(PlannerBench::path(FileGrafici));
    press();
    ASSERT_THAT(bench.messaggi.shown, SizeIs(1));
    EXPECT_THAT(bench.messaggi.shown.front().text, testing::StartsWith("Errore sul File :"));
    ASSERT_THAT(shown(), SizeIs(1));
    EXPECT_EQ(shown().front().TitleText, "");
}

TEST_F(ChartCommandTest, AnImpossibleDayIsSaidAndOpensNoChart) {
    bench.putGrafici({rigaGrafico("RB", "20060332", "0007:30")});
    open("M");
    gesto(3, 15);
    press();
    ASSERT_THAT(bench.messaggi.shown, SizeIs(1));
    EXPECT_EQ(bench.messaggi.shown.front().icon, MessageIcon::Critical);
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(ChartCommandTest, MakesNoAnswerAndMovesNothing) {
    open("M");
    gesto(3, 17);
    press();
    EXPECT_EQ(sessione.valret, "");
    EXPECT_FALSE(sessione.FinePlanner);
    EXPECT_EQ(formatDate(controlli.calendario.Value()), "20060315");
}

TEST_F(ChartCommandTest, AnUnknownKindHasNoChart) {
    open("X");
    bench.messaggi.shown.clear();
    press();
    EXPECT_THAT(bench.messaggi.shown, IsEmpty());
    EXPECT_THAT(shown(), IsEmpty());
}

} // namespace
} // namespace planner::test
