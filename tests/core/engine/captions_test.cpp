// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/planner_bench.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

class CaptionsTest : public testing::Test {
protected:
    const std::string& caption() const { return bench.controlli.Caption; }
    const std::string& title() const { return bench.controlli.lbldescr; }

    PlannerBench bench;
};

TEST_F(CaptionsTest, TheWindowHasItsOwnCaptionAtFirst) {
    EXPECT_EQ(caption(), "Planner grafico");
    EXPECT_EQ(title(), "");
    EXPECT_EQ(bench.controlli.grigliaVisibile(), nullptr);
    EXPECT_EQ(bench.controlli.nomeGrigliaVisibile(), "");
}

TEST_F(CaptionsTest, MonthlyPlanner) {
    bench.init("M", "20060315");
    EXPECT_EQ(caption(), "Planner Mensile");
    EXPECT_EQ(title(), "Mese di Marzo 2006");
    EXPECT_EQ(bench.controlli.grigliaVisibile(), &bench.controlli.Flxm);
    EXPECT_EQ(bench.controlli.nomeGrigliaVisibile(), "Flxm");
    EXPECT_EQ(bench.controlli.Flxm.Cols(), 38);
    EXPECT_EQ(bench.controlli.Flxm.FixedRows(), 2);
}

TEST_F(CaptionsTest, TheMonthlyTitleNamesTheShownMonthNotThePeriods) {
    bench.init("M", "20061210", "20060101", "20070630");
    EXPECT_EQ(title(), "Mese di Dicembre 2006");
}

TEST_F(CaptionsTest, DailyPlanner) {
    bench.init("G", "20060610", "20060305", "20070615");
    EXPECT_EQ(caption(), "Planner Giornaliero");
    EXPECT_EQ(title(), "Dal 5 Marzo 2006 al 15 Giugno 2007");
    EXPECT_EQ(bench.controlli.grigliaVisibile(), &bench.controlli.flxg);
    EXPECT_EQ(bench.controlli.nomeGrigliaVisibile(), "flxg");
    EXPECT_EQ(bench.controlli.flxg.Cols(), 97);
    EXPECT_EQ(bench.controlli.flxg.FixedRows(), 1);
}

TEST_F(CaptionsTest, YearlyPlannerNamesTheIncomingStaffMember) {
    bench.init("A", "00000000", "20060101", "20061231", "RB");
    EXPECT_EQ(caption(), "Planner Annuale");
    EXPECT_EQ(title(), "Anno 2006 Impegni di: Rossi Bruno");
    EXPECT_EQ(bench.controlli.grigliaVisibile(), &bench.controlli.flxa);
    EXPECT_EQ(bench.controlli.nomeGrigliaVisibile(), "flxa");
    EXPECT_EQ(bench.controlli.flxa.Cols(), 38);
    EXPECT_EQ(bench.controlli.flxa.Rows(), 13);
    EXPECT_EQ(bench.controlli.flxa.FixedRows(), 1);
}

TEST_F(CaptionsTest, YearlyPlannerInModeNLeavesTheNameOut) {
    bench.sessione.ModoFinestra = "N";
    bench.init("A", "00000000", "20060101", "20061231", "RB");
    EXPECT_EQ(title(), "Anno 2006");
}

TEST_F(CaptionsTest, YearlyPlannerOfAnUnknownStaffMemberNamesTwoBlanks) {
    bench.init("A", "00000000", "20060101", "20061231", "ZZ");
    EXPECT_EQ(title(), "Anno 2006 Impegni di:   ");
}

TEST_F(CaptionsTest, TheYearIsTheStartDates) {
    bench.init("A", "00000000", "20050401", "20061231", "RB");
    EXPECT_EQ(title(), "Anno 2005 Impegni di: Rossi Bruno");
}

TEST_F(CaptionsTest, TheWholeRequestPassesTheIncomingStaffMemberOn) {
    WPlannerCall call = PlannerBench::richiestaMensile();
    call.tipoplanner = "A";
    call.collab = "BI";
    std::string seen;
    bench.eventi.actions.push_back([&] {
        seen = title();
        bench.answers("20060101  E")();
    });
    bench.serve(call);
    EXPECT_EQ(seen, "Anno 2006 Impegni di: Bianchi Rosa");
    EXPECT_EQ(call.collab, "  ");
}

TEST_F(CaptionsTest, LetPlannerWritesTheTitleOfTheShownPeriod) {
    bench.init("M", "20060315");
    bench.controlli.calendario.setValue(*makeDate(2006, 11, 1));
    bench.motore.Let_planner();
    EXPECT_EQ(title(), "Mese di Novembre 2006");
}

TEST_F(CaptionsTest, TextsOfTheArchiveStayInTheirBytes) {
    bench.putCollaboratori({collaboratore("RB", "Nicol\xF2 D'Al\xEC")});
    bench.init("A", "00000000", "20060101", "20061231", "RB");
    EXPECT_EQ(title(), "Anno 2006 Impegni di: Nicol\xF2 D'Al\xEC");
}

TEST(TipoPlannerTest, ThreeLettersNameAKind) {
    EXPECT_EQ(tipoPlanner("M"), TipoPlanner::Mensile);
    EXPECT_EQ(tipoPlanner("G"), TipoPlanner::Giornaliero);
    EXPECT_EQ(tipoPlanner("A"), TipoPlanner::Annuale);
    for (const std::string_view other : {"", " ", "m", "X", "MG", "\xFF"}) {
        EXPECT_FALSE(tipoPlanner(other)) << other;
    }
}

} // namespace
} // namespace planner::test
