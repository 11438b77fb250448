// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plfcollab_fixture.h"

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StaffAnswerTest : public PlfcollabFixture {};

TEST_F(StaffAnswerTest, ConfirmingAnswersTheShownDayTheSelectedCodeAndC) {
    form.List_Prenotazione_ItemClick(0);
    press(ComandoCollab::conferma);
    EXPECT_EQ(sessione.valret, "20060315RBC");
    EXPECT_EQ(sessione.collab, "RB");
    EXPECT_TRUE(sessione.FinePlanner);
}

TEST_F(StaffAnswerTest, ACodeOfOneCharacterKeepsItsBlank) {
    form.List_Prenotazione_ItemClick(2);
    press(ComandoCollab::conferma);
    EXPECT_EQ(sessione.valret, "200603157 C");
    EXPECT_EQ(sessione.collab, "7 ");
}

TEST_F(StaffAnswerTest, TheDateIsTheCalendarsAtTheMomentOfConfirming) {
    form.List_Prenotazione_ItemClick(0);
    calendario.setValue({std::chrono::year{2006}, std::chrono::December, std::chrono::day{1}});
    press(ComandoCollab::conferma);
    EXPECT_EQ(sessione.valret, "20061201RBC");
}

TEST_F(StaffAnswerTest, ConfirmingReplacesAFormerAnswer) {
    sessione.valret = "20060301BIA";
    sessione.collab = "BI";
    form.List_Prenotazione_ItemClick(0);
    press(ComandoCollab::conferma);
    EXPECT_EQ(sessione.valret, "20060315RBC");
}

TEST_F(StaffAnswerTest, ConfirmingClosesTheWindow) {
    form.List_Prenotazione_ItemClick(0);
    press(ComandoCollab::conferma);
    EXPECT_FALSE(form.isShown());
    EXPECT_EQ(journal.front(), "hide staff");
}

TEST_F(StaffAnswerTest, ConfirmingWithoutASelectedRowAsksForOneAndAnswersNothing) {
    check({0, 1});
    press(ComandoCollab::conferma);
    EXPECT_THAT(messages(),
                ElementsAre(Message{MessageIcon::Information, "Planner", std::string(TestoScegliere)}));
    EXPECT_EQ(sessione.valret, "");
    EXPECT_EQ(sessione.collab, "  ");
    EXPECT_FALSE(sessione.FinePlanner);
    EXPECT_TRUE(form.isShown());
}

TEST_F(StaffAnswerTest, ARowOutsideTheListCountsAsNone) {
    form.List_Prenotazione_ItemClick(0);
    form.List_Prenotazione_ItemClick(4);
    EXPECT_EQ(lista.selezionata(), std::nullopt);
    form.List_Prenotazione_ItemClick(0);
    form.List_Prenotazione_ItemClick(-1);
    EXPECT_EQ(lista.selezionata(), std::nullopt);
}

TEST_F(StaffAnswerTest, TheAnswerFollowsTheSelectedStaffMemberThroughASort) {
    form.List_Prenotazione_ItemClick(0);
    press(ComandoCollab::ordina);
    press(ComandoCollab::conferma);
    EXPECT_EQ(sessione.collab, "RB");
}

TEST_F(StaffAnswerTest, ClosingAnswersNothing) {
    form.List_Prenotazione_ItemClick(0);
    form.unload();
    EXPECT_EQ(sessione.valret, "");
    EXPECT_EQ(sessione.collab, "  ");
    EXPECT_FALSE(sessione.FinePlanner);
    EXPECT_THAT(journal, ElementsAre("hide staff"));
}

TEST_F(StaffAnswerTest, ClosingAWindowThatIsNotShownDoesNothing) {
    form.unload();
    journal.clear();
    form.unload();
    EXPECT_THAT(journal, IsEmpty());
}

TEST_F(StaffAnswerTest, ShowingShowsTheRowsFirst) {
    form.unload();
    journal.clear();
    form.show();
    EXPECT_THAT(journal, ElementsAre("staff rows", "show staff"));
}

TEST_F(StaffAnswerTest, ARowIsOneSentence) {
    EXPECT_EQ(fraseCollaboratore({"RB", "Rossi Bruno", "Avvocato", true}),
              "Rossi Bruno, RB, Avvocato, spuntato");
    EXPECT_EQ(fraseCollaboratore({"7 ", "Nicol\xF2", "", false}), "Nicolò, 7, non spuntato");
    EXPECT_EQ(fraseCollaboratore({"  ", "", "", false}), "non spuntato");
}

} // namespace
} // namespace planner::test
