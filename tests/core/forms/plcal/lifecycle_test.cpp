// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plcal_fixture.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PlcalLifecycleTest : public PlcalFixture {};

TEST_F(PlcalLifecycleTest, LoadScalesTheDesignToTheScreen) {
    vista.screen = {ProgettoPlcal.width * 2, ProgettoPlcal.height * 3};
    form.load();
    EXPECT_TRUE(form.isLoaded());
    EXPECT_FLOAT_EQ(form.scala().ScalaX, 2);
    EXPECT_FLOAT_EQ(form.scala().ScalaY, 3);
    EXPECT_FLOAT_EQ(form.scala().ScalaMin(), 2);
    const auto designed = controlliPlcal();
    ASSERT_EQ(vista.placed.size(), designed.size());
    for (std::size_t i = 0; i < designed.size(); ++i) {
        const Rettangolo& from = designed[i].posizione;
        const Rettangolo& to = vista.placed[i].posizione;
        EXPECT_EQ(to, designed[i].pulsanteComando
                          ? from
                          : (Rettangolo{from.Left * 2, from.Top * 3, from.Width * 2, from.Height * 3}))
            << designed[i].nome;
    }
}

TEST_F(PlcalLifecycleTest, AWindowIsLoadedOnce) {
    form.load();
    form.load();
    EXPECT_THAT(bench.journal, ElementsAre("lay out"));
}

TEST_F(PlcalLifecycleTest, ShowingUpdatesShowsAndActivates) {
    open("M");
    form.show();
    form.bringToFront();
    EXPECT_THAT(bench.journal, ElementsAre("update", "show", "scroll to the cursor", "lock",
                                           "place period buttons", "unlock", "bring to front"));
}

TEST_F(PlcalLifecycleTest, ActivatingPlacesThePeriodButtonsAgainUnderALock) {
    open("M");
    form.Form_Activate();
    form.Form_Activate();
    EXPECT_THAT(bench.journal, ElementsAre("lock", "place period buttons", "unlock", //
                                           "lock", "place period buttons", "unlock"));
}

TEST_F(PlcalLifecycleTest, ActivatingTheDailyPlannerScrollsToColumn33) {
    open("G");
    form.Form_Activate();
    EXPECT_THAT(bench.journal, ElementsAre("lock", "place period buttons", "scroll to 33", "unlock"));
}

TEST_F(PlcalLifecycleTest, ActivatingTheYearlyPlannerDoesNotScroll) {
    open("A");
    form.Form_Activate();
    EXPECT_THAT(bench.journal, ElementsAre("lock", "place period buttons", "unlock"));
}

TEST_F(PlcalLifecycleTest, EscapeUnloadsTheWindow) {
    open("M");
    EXPECT_TRUE(form.Form_KeyDown(27));
    EXPECT_FALSE(form.isLoaded());
    EXPECT_TRUE(sessione.FinePlanner);
    EXPECT_EQ(sessione.valret, "20060315  E");
    EXPECT_THAT(bench.journal, ElementsAre("hide"));
}

TEST_F(PlcalLifecycleTest, OtherKeysPassOn) {
    open("M");
    for (int key = 0; key < 256; ++key) {
        if (key != 27) {
            EXPECT_FALSE(form.Form_KeyDown(key)) << key;
        }
    }
    EXPECT_TRUE(form.isLoaded());
    EXPECT_FALSE(sessione.FinePlanner);
    EXPECT_THAT(bench.journal, IsEmpty());
}

TEST_F(PlcalLifecycleTest, UnloadAnswersWithTheShownDayTheStaffMemberAndE) {
    open("M", "20060305");
    sessione.collab = "RB";
    form.unload();
    EXPECT_EQ(sessione.valret, "20060305RBE");
    EXPECT_TRUE(sessione.FinePlanner);
}

TEST_F(PlcalLifecycleTest, UnloadRewritesAnAnswerEndingInDToEndInE) {
    open("M");
    sessione.valret = "20060310RBD";
    sessione.collab = "RB";
    form.unload();
    EXPECT_EQ(sessione.valret, "20060315RBE");
}

TEST_F(PlcalLifecycleTest, UnloadKeepsAnAnswerEndingInFAndTheWindowLoaded) {
    open("M");
    sessione.valret = "20060310RBF";
    form.unload();
    EXPECT_EQ(sessione.valret, "20060310RBF");
    EXPECT_TRUE(sessione.FinePlanner);
    EXPECT_TRUE(form.isLoaded());
    EXPECT_THAT(bench.journal, ElementsAre("hide"));
}

TEST_F(PlcalLifecycleTest, UnloadingAWindowThatIsNotLoadedDoesNothing) {
    sessione.valret = "20060310RBD";
    form.unload();
    EXPECT_EQ(sessione.valret, "20060310RBD");
    EXPECT_FALSE(sessione.FinePlanner);
    EXPECT_THAT(bench.journal, IsEmpty());
}

TEST_F(PlcalLifecycleTest, HidingKeepsTheWindowLoadedAndAnswersNothing) {
    open("M");
    form.hide();
    EXPECT_TRUE(form.isLoaded());
    EXPECT_FALSE(sessione.FinePlanner);
    EXPECT_EQ(sessione.valret, "");
}

TEST_F(PlcalLifecycleTest, TheExitButtonClosesTheWindow) {
    open("M");
    form.Toolbar1_ButtonClick("exit");
    EXPECT_FALSE(form.isLoaded());
    EXPECT_EQ(sessione.valret, "20060315  E");
}

} // namespace
} // namespace planner::test
