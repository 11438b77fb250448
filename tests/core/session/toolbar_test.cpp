// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "session/toolbar.h"
#include "support/planner_bench.h"

#include <gtest/gtest.h>
#include <tuple>
#include <vector>

namespace planner::test {
namespace {

TEST(ToolbarTest, ButtonsStandAtTheirPositionsWithTheirKeysAndCaptions) {
    const std::vector<std::tuple<int, std::string_view, std::string_view>> table{
        {2, "exit", "Uscita"},
        {4, "coll", "Selezione Collaboratori"},
        {6, "filtri", "Filtri"},
        {8, "agenda", "Agenda"},
        {10, "consult", "Consultazione"},
        {11, "insimp", "Inserimento impegni"},
        {13, "dettno", "Planner non dettagliato"},
        {14, "dettsi", "Planner dettagliato"},
        {15, "grafici", "Grafici"},
        {17, "info", "Informazioni"},
    };
    ASSERT_EQ(PulsantiToolbar.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(std::make_tuple(static_cast<int>(PulsantiToolbar[i].posizione), PulsantiToolbar[i].chiave,
                                  PulsantiToolbar[i].didascalia),
                  table[i]);
    }
}

TEST(ToolbarTest, OfThePairExactlyOneIsVisibleAndEnabled) {
    StatoToolbar toolbar;
    for (const bool dettagliato : {true, false, true}) {
        toolbar.setDettagliato(dettagliato);
        EXPECT_EQ(toolbar.enabled(Pulsante::dettno), dettagliato);
        EXPECT_EQ(toolbar.visible(Pulsante::dettno), dettagliato);
        EXPECT_EQ(toolbar.enabled(Pulsante::dettsi), !dettagliato);
        EXPECT_EQ(toolbar.visible(Pulsante::dettsi), !dettagliato);
        EXPECT_EQ(toolbar.dettagliato(), dettagliato);
    }
}

TEST(ToolbarTest, AResetMakesEveryOtherButtonUsable) {
    StatoToolbar toolbar;
    toolbar.setEnabled(Pulsante::agenda, false);
    toolbar.setVisible(Pulsante::info, false);
    toolbar.reset(false);
    EXPECT_TRUE(toolbar.enabled(Pulsante::agenda));
    EXPECT_TRUE(toolbar.visible(Pulsante::info));
    EXPECT_FALSE(toolbar.visible(Pulsante::dettno));
}

class ToolbarByRequestTest : public testing::Test {
protected:
    /// Serves a request whose user closes at once, and returns the toolbar that he saw.
    StatoToolbar serve(std::string_view tipo, std::string_view modo, std::string_view tipocall = " ",
                       std::string_view planrichiesto = " ") {
        bench.serveAndClose(tipo, modo, tipocall, planrichiesto);
        return bench.controlli.Toolbar1;
    }

    PlannerBench bench;
};

TEST_F(ToolbarByRequestTest, CallKindADisablesTheAgenda) {
    EXPECT_FALSE(serve("M", " ", "A").enabled(Pulsante::agenda));
    for (const std::string_view other : {" ", "a", "B", "M"}) {
        EXPECT_TRUE(serve("M", " ", other).enabled(Pulsante::agenda)) << other;
    }
}

TEST_F(ToolbarByRequestTest, PlanrichiestoSDisablesTheCharts) {
    EXPECT_FALSE(serve("M", " ", " ", "S").enabled(Pulsante::grafici));
    for (const std::string_view other : {" ", "s", "N"}) {
        EXPECT_TRUE(serve("M", " ", " ", other).enabled(Pulsante::grafici)) << other;
    }
}

TEST_F(ToolbarByRequestTest, TheNextRequestEnablesThemAgain) {
    serve("M", " ", "A", "S");
    const StatoToolbar toolbar = serve("G", " ");
    EXPECT_TRUE(toolbar.enabled(Pulsante::agenda));
    EXPECT_TRUE(toolbar.enabled(Pulsante::grafici));
}

TEST_F(ToolbarByRequestTest, ModeNOpensTheMonthlyPlannerNonDetailed) {
    const StatoToolbar toolbar = serve("M", "N");
    EXPECT_TRUE(toolbar.visible(Pulsante::dettsi));
    EXPECT_FALSE(toolbar.visible(Pulsante::dettno));
    EXPECT_FALSE(toolbar.enabled(Pulsante::dettno));
    EXPECT_EQ(bench.sessione.LivelloDettaglio, 1);
}

TEST_F(ToolbarByRequestTest, AnyOtherModeOpensTheMonthlyPlannerDetailed) {
    for (const std::string_view mode : {" ", "n", "S", "X"}) {
        const StatoToolbar toolbar = serve("M", mode);
        EXPECT_TRUE(toolbar.visible(Pulsante::dettno)) << mode;
        EXPECT_TRUE(toolbar.enabled(Pulsante::dettno)) << mode;
        EXPECT_FALSE(toolbar.visible(Pulsante::dettsi)) << mode;
        EXPECT_EQ(bench.sessione.LivelloDettaglio, 4) << mode;
    }
}

TEST_F(ToolbarByRequestTest, TheDailyPlannerOpensDetailed) {
    for (const std::string_view mode : {"N", " "}) {
        EXPECT_TRUE(serve("G", mode).visible(Pulsante::dettno)) << mode;
        EXPECT_EQ(bench.sessione.LivelloDettaglio, 4) << mode;
    }
}

TEST_F(ToolbarByRequestTest, TheYearlyPlannerHasNoDetailsAndNoStaffSelection) {
    for (const std::string_view mode : {"N", " "}) {
        const StatoToolbar toolbar = serve("A", mode);
        EXPECT_FALSE(toolbar.enabled(Pulsante::dettno)) << mode;
        EXPECT_FALSE(toolbar.enabled(Pulsante::dettsi)) << mode;
        EXPECT_FALSE(toolbar.enabled(Pulsante::coll)) << mode;
        EXPECT_TRUE(toolbar.enabled(Pulsante::consult)) << mode;
        EXPECT_TRUE(toolbar.enabled(Pulsante::grafici)) << mode;
    }
    EXPECT_TRUE(serve("M", " ").enabled(Pulsante::coll));
}

} // namespace
} // namespace planner::test
