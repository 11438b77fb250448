// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plcal_fixture.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::IsEmpty;

class CommandsTest : public PlcalFixture {
protected:
    void SetUp() override {
        bench.putRighe({riga("RB", "20060315", {{1, "00002"}}), riga("BI", "20060310", {{7, "00001"}}),
                        riga("7 ", "20060310", {{6, "00001"}}), RigaPlanner{}});
    }
    void press(std::string_view chiave) { form.Toolbar1_ButtonClick(chiave); }
    const std::string& reply() { return sessione.valret; }
};

TEST_F(CommandsTest, ExitAnswersE) {
    open("M");
    press("exit");
    EXPECT_EQ(reply(), "20060315  E");
    EXPECT_TRUE(sessione.FinePlanner);
    EXPECT_FALSE(form.isLoaded());
}

TEST_F(CommandsTest, FiltriAnswersFAndTheUnloadKeepsIt) {
    open("M");
    gesto(3, 17);
    press("filtri");
    EXPECT_EQ(reply(), "20060315RBF");
    EXPECT_TRUE(sessione.FinePlanner);
    EXPECT_TRUE(form.isLoaded()) << "kept for the next request";
}

TEST_F(CommandsTest, AgendaAnswersAUnlessTheCallIsOfModeA) {
    open("M");
    sessione.tipocall = "A";
    press("agenda");
    EXPECT_THAT(reply(), IsEmpty());
    EXPECT_FALSE(sessione.FinePlanner);
    sessione.tipocall = " ";
    press("agenda");
    EXPECT_EQ(reply(), "20060315  A") << "a code of two blanks is written as two blanks";
}

TEST_F(CommandsTest, ConsultWithoutASelectedStaffMemberDoesNothing) {
    open("M");
    press("consult");
    EXPECT_THAT(reply(), IsEmpty());
    EXPECT_FALSE(sessione.FinePlanner);
}

TEST_F(CommandsTest, ConsultNeedsADeadlineOrACaseFile) {
    open("M");
    gesto(2, 12); // Bianchi: a note only
    press("consult");
    EXPECT_THAT(reply(), IsEmpty());
    gesto(3, 17); // Rossi: deadlines
    press("consult");
    EXPECT_EQ(reply(), "20060315RBD");
    gesto(4, 12); // Verdi: a case file
    press("consult");
    EXPECT_EQ(reply(), "200603107 D");
}

TEST_F(CommandsTest, ConsultInTheDailyPlannerTakesTheCurrentRow) {
    open("G");
    gesto(2, 40);
    press("consult");
    EXPECT_EQ(reply(), "20060315RBD");
    sessione.valret.clear();
    gesto(1, 40);
    press("consult");
    EXPECT_THAT(reply(), IsEmpty());
}

TEST_F(CommandsTest, ConsultInTheYearlyPlannerNeedsAMarkedDay) {
    bench.putAnnuale(annoPlanner("2006", {{3, 17}}));
    open("A");
    gesto(3, 18);
    press("consult");
    EXPECT_THAT(reply(), IsEmpty());
    gesto(3, 17);
    press("consult");
    EXPECT_EQ(reply(), "20060315  D");
}

TEST_F(CommandsTest, ConsultOnTheYearlyHeaderIsASubscriptErrorThatIsSaid) {
    open("A");
    controlli.flxa.setCurrent({0, 0});
    press("consult");
    ASSERT_EQ(bench.messaggi.shown.size(), 1U);
    EXPECT_EQ(bench.messaggi.shown[0].icon, MessageIcon::Critical);
    EXPECT_THAT(reply(), IsEmpty());
}

TEST_F(CommandsTest, InsimpInVariantBAnswersTAndNeverAsks) {
    open("M");
    sessione.FlagFinestra = "B";
    press("insimp");
    EXPECT_EQ(reply(), "20060315  T");
    EXPECT_EQ(finestraImpegno.asked, 0);
}

TEST_F(CommandsTest, InsimpAnswersWhatTheDialogChose) {
    open("M");
    gesto(3, 17);
    finestraImpegno.user = [](plfimp& dialog) { dialog.conferma_Click(); };
    press("insimp");
    EXPECT_EQ(reply(), "20060315RBI");
    finestraImpegno.user = [](plfimp& dialog) {
        dialog.Option1_Click(1);
        dialog.conferma_Click();
    };
    press("insimp");
    EXPECT_EQ(reply(), "20060315RBT");
}

TEST_F(CommandsTest, CancellingTheDialogLeavesTheReplyUntouched) {
    open("M");
    finestraImpegno.user = [](plfimp& dialog) { dialog.annulla_Click(); };
    press("insimp");
    EXPECT_THAT(reply(), IsEmpty());
    EXPECT_FALSE(sessione.FinePlanner);
    EXPECT_EQ(finestraImpegno.asked, 1);
}

TEST_F(CommandsTest, DettnoThenDettsiReturnsTheToolbarToItsFirstStateAndRefillsTwice) {
    open("M");
    const auto pictureOfRossi = [&] { return static_cast<int>(controlli.Flxm.cella(3, 17).immagine); };
    const int detailed = pictureOfRossi();
    press("dettno");
    EXPECT_FALSE(controlli.Toolbar1.visible(Pulsante::dettno));
    EXPECT_FALSE(controlli.Toolbar1.enabled(Pulsante::dettno));
    EXPECT_TRUE(controlli.Toolbar1.visible(Pulsante::dettsi));
    EXPECT_TRUE(controlli.Toolbar1.enabled(Pulsante::dettsi));
    EXPECT_EQ(pictureOfRossi(), ImmaginePresenza);
    EXPECT_EQ(sessione.LivelloDettaglio, 1);
    press("dettsi");
    EXPECT_TRUE(controlli.Toolbar1.enabled(Pulsante::dettno));
    EXPECT_FALSE(controlli.Toolbar1.visible(Pulsante::dettsi));
    EXPECT_EQ(pictureOfRossi(), detailed);
    EXPECT_EQ(sessione.LivelloDettaglio, 4);
}

TEST_F(CommandsTest, ASwitchOfDetailKeepsSelectionAndPanel) {
    open("M");
    gesto(3, 17);
    press("dettno");
    EXPECT_EQ(controlli.Flxm.CellBackColor(3, 1), Colore::giallo);
    EXPECT_EQ(controlli.Flxm.CellBackColor(3, 17), Colore::ciano);
    EXPECT_EQ(etichetta(form.pannello(), "Lblscad").testo, "2");
    EXPECT_EQ(controlli.Flxm.Row(), 3);
    EXPECT_EQ(controlli.Flxm.Col(), 17);
}

TEST_F(CommandsTest, InfoShowsTheInformationAndMakesNoReply) {
    open("M");
    bench.journal.clear();
    press("info");
    EXPECT_THAT(bench.journal, testing::Contains("information"));
    EXPECT_THAT(reply(), IsEmpty());
    EXPECT_FALSE(sessione.FinePlanner);
}

TEST_F(CommandsTest, AnUnknownKeyOrOneInAnotherCaseDoesNothing) {
    open("M");
    for (const char* key : {"", "EXIT", "Exit", "esci", "consult ", "13"}) {
        press(key);
    }
    EXPECT_THAT(reply(), IsEmpty());
    EXPECT_TRUE(form.isLoaded());
}

TEST_F(CommandsTest, ALaterReplyWins) {
    open("M");
    gesto(3, 17);
    press("consult");
    press("agenda");
    EXPECT_EQ(reply(), "20060315RBA");
}

TEST_F(CommandsTest, TheDateOfAReplyIsTheCalendarsAtTheMomentOfTheCommand) {
    open("M");
    gesto(3, 3);
    gesto(3, 3);
    press("consult");
    EXPECT_EQ(reply(), "20060301RBD");
}

TEST_F(CommandsTest, CollShowsTheWholeStaffAndMakesNoReply) {
    open("M");
    press("coll");
    EXPECT_TRUE(collaboratori.isShown());
    EXPECT_EQ(collaboratori.conteggio(), "0 spuntati su 3");
    EXPECT_EQ(collaboratori.List_Prenotazione().riga(1).nome, "Rossi Bruno");
    EXPECT_THAT(bench.journal, testing::ElementsAre("staff rows", "show staff"));
    EXPECT_THAT(reply(), IsEmpty());
    EXPECT_FALSE(sessione.FinePlanner);
}

TEST_F(CommandsTest, CollAgainBringsTheDeletedRowsBack) {
    open("M");
    press("coll");
    collaboratori.Toolbar_pren_ButtonClick(4);
    EXPECT_EQ(collaboratori.List_Prenotazione().righe(), 0);
    press("coll");
    EXPECT_EQ(collaboratori.List_Prenotazione().righe(), 3);
}

TEST_F(CommandsTest, ConfirmingAStaffMemberAnswersCAndLeavesThePlannerToTheSession) {
    open("M");
    press("coll");
    collaboratori.List_Prenotazione_ItemClick(1);
    collaboratori.Toolbar_pren_ButtonClick(11);
    EXPECT_EQ(reply(), "20060315RBC");
    EXPECT_TRUE(sessione.FinePlanner);
    EXPECT_FALSE(collaboratori.isShown());
    EXPECT_TRUE(form.isLoaded());
}

TEST_F(CommandsTest, ClosingThePlannerClosesTheStaffWindow) {
    open("M");
    press("coll");
    press("exit");
    EXPECT_FALSE(collaboratori.isShown());
    EXPECT_THAT(bench.journal, testing::Contains("hide staff"));
}

TEST_F(CommandsTest, AnAnswerThatKeepsThePlannerLoadedClosesTheStaffWindowToo) {
    open("M");
    press("coll");
    press("filtri");
    EXPECT_TRUE(form.isLoaded());
    EXPECT_FALSE(collaboratori.isShown());
}

TEST_F(CommandsTest, HidingThePlannerHidesTheStaffWindow) {
    open("M");
    press("coll");
    form.hide();
    EXPECT_FALSE(collaboratori.isShown());
}

TEST_F(CommandsTest, ThePlannerStaysUsableBesideTheStaffWindow) {
    open("M");
    press("coll");
    gesto(3, 17);
    press("consult");
    EXPECT_EQ(reply(), "20060315RBD");
    EXPECT_TRUE(collaboratori.isShown());
}

TEST_F(CommandsTest, TheGridsOwnCommandsCopyAndPrintAndAnswerNothing) {
    open("M");
    form.griglia_Comando(ComandoGriglia::stampa);
    EXPECT_EQ(form.stato(), "Il planner è stato stampato.");
    form.griglia_Comando(ComandoGriglia::stampaConTotali);
    form.griglia_Comando(ComandoGriglia::copia);
    EXPECT_EQ(form.stato(), "La tabella è stata copiata.");
    EXPECT_EQ(bench.journal, (Journal{"stampa", "update", "stampaConTotali", "update", "copia", "update"}));
    EXPECT_THAT(reply(), IsEmpty());
}

TEST_F(CommandsTest, WhatIsNotPrintedIsNotSaidToBe) {
    open("M");
    suCartaRiesce = false;
    form.griglia_Comando(ComandoGriglia::stampa);
    EXPECT_EQ(form.stato(), "");
}

TEST_F(CommandsTest, TheGridIsShownSmallerForAllRequestsOfTheProgram) {
    open("M");
    form.griglia_Comando(ComandoGriglia::riduci);
    EXPECT_EQ(form.ingrandimento().percento(), 90);
    EXPECT_EQ(form.stato(), "Ingrandimento al 90 %.");
    EXPECT_EQ(bench.journal, (Journal{"update"}));
    EXPECT_THAT(reply(), IsEmpty());
    press("exit");
    open("G");
    EXPECT_EQ(form.ingrandimento().percento(), 90);
    form.griglia_Comando(ComandoGriglia::grandezzaNormale);
    EXPECT_EQ(form.ingrandimento().percento(), 100);
}

TEST_F(CommandsTest, WithoutAGridThereIsNothingToPrint) {
    open("X");
    bench.journal.clear();
    form.griglia_Comando(ComandoGriglia::stampa);
    EXPECT_THAT(bench.journal, IsEmpty());
}

} // namespace
} // namespace planner::test
