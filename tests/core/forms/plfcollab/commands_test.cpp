// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plfcollab_fixture.h"

namespace planner::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class StaffCommandsTest : public PlfcollabFixture {
protected:
    void checkFirst(int count) {
        for (int riga = 0; riga < count; ++riga) {
            lista.spunta(riga, true);
        }
    }
};

TEST_F(StaffCommandsTest, TheButtonsAreThoseOfTheToolbar) {
    struct {
        int indice;
        const char* didascalia;
    } const expected[] = {
        {1, "Seleziona tutti"},    {2, "Deseleziona tutti"},   {4, "Visualizza solo i selezionati"},
        {5, "Visualizza tutti"},   {7, "Cerca collaboratore"}, {9, "Ordina alfabeticamante"},
        {11, "Conferma selezioni"}};
    ASSERT_EQ(ComandiCollab.size(), std::size(expected));
    for (std::size_t i = 0; i < ComandiCollab.size(); ++i) {
        EXPECT_EQ(static_cast<int>(ComandiCollab[i].posizione), expected[i].indice);
        EXPECT_EQ(ComandiCollab[i].didascalia, expected[i].didascalia);
    }
}

TEST_F(StaffCommandsTest, SelezionaTuttiChecksEveryRow) {
    press(ComandoCollab::selezionaTutti);
    EXPECT_EQ(rows(), "RB* BI* 7 * NC* ");
    EXPECT_THAT(journal, ElementsAre("update staff"));
}

TEST_F(StaffCommandsTest, DeselezionaTuttiClearsEveryCheck) {
    check({1, 3});
    press(ComandoCollab::deselezionaTutti);
    EXPECT_EQ(rows(), "RB BI 7  NC ");
}

TEST_F(StaffCommandsTest, ChecksDoNotShowTheRowsAnew) {
    press(ComandoCollab::selezionaTutti);
    check({1});
    press(ComandoCollab::deselezionaTutti);
    EXPECT_THAT(journal, Not(Contains("staff rows")));
}

TEST_F(StaffCommandsTest, OtherIndexesCarryNoCommand) {
    check({1});
    journal.clear();
    for (const int indice : {-1, 0, 3, 6, 8, 10, 12, 100}) {
        form.Toolbar_pren_ButtonClick(indice);
    }
    EXPECT_EQ(rows(), "RB BI* 7  NC ");
    EXPECT_THAT(journal, IsEmpty());
    EXPECT_FALSE(sessione.FinePlanner);
}

TEST_F(StaffCommandsTest, SoloISelezionatiDeletesTheUncheckedRows) {
    check({1, 3});
    press(ComandoCollab::soloSelezionati);
    EXPECT_EQ(rows(), "BI* NC* ");
    EXPECT_THAT(journal, Contains("staff rows"));
}

TEST_F(StaffCommandsTest, SoloISelezionatiWithoutAnyCheckEmptiesTheList) {
    press(ComandoCollab::soloSelezionati);
    EXPECT_EQ(lista.righe(), 0);
    EXPECT_EQ(form.conteggio(), "0 spuntati su 0, 4 tolti dall'elenco");
}

TEST_F(StaffCommandsTest, SoloISelezionatiKeepsTheSelectedRowWhenItIsChecked) {
    check({1, 3});
    form.List_Prenotazione_ItemClick(3);
    press(ComandoCollab::soloSelezionati);
    EXPECT_EQ(lista.selezionata(), 1);
    EXPECT_THAT(journal, Contains("staff row in sight 1"));
}

TEST_F(StaffCommandsTest, SoloISelezionatiThatDeletesTheSelectedRowLeavesNoneSelected) {
    check({1, 3});
    form.List_Prenotazione_ItemClick(0);
    press(ComandoCollab::soloSelezionati);
    EXPECT_EQ(lista.selezionata(), std::nullopt);
}

TEST_F(StaffCommandsTest, AHundredAndOneCheckedRowsAreRemembered) {
    fillNumbered(200);
    checkFirst(101);
    press(ComandoCollab::soloSelezionati);
    EXPECT_EQ(lista.righe(), 101);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(StaffCommandsTest, AHundredAndTwoCheckedRowsAreAnErrorThatIsSaidAndTheListStays) {
    fillNumbered(200);
    checkFirst(102);
    press(ComandoCollab::soloSelezionati);
    EXPECT_EQ(lista.righe(), 200);
    EXPECT_EQ(lista.spuntate(), 102);
    EXPECT_THAT(messages(),
                ElementsAre(Message{MessageIcon::Critical, "Planner",
                                    "Operazione non riuscita: un indice è fuori dai limiti della tabella."}));
}

TEST_F(StaffCommandsTest, AfterTheErrorThePositionsRememberedBeforeStillHold) {
    fillNumbered(200);
    check({0, 1});
    press(ComandoCollab::soloSelezionati);
    fillNumbered(200);
    checkFirst(102);
    press(ComandoCollab::soloSelezionati);
    press(ComandoCollab::deselezionaTutti);
    press(ComandoCollab::visualizzaTutti);
    EXPECT_EQ(lista.spuntate(), 2);
}

TEST_F(StaffCommandsTest, VisualizzaTuttiChecksTheRememberedPositionsOfTheRowsThatThereAreNow) {
    check({1, 3});
    press(ComandoCollab::soloSelezionati); // remembers 2 and 4, leaves two rows
    press(ComandoCollab::deselezionaTutti);
    press(ComandoCollab::visualizzaTutti);
    EXPECT_EQ(rows(), "BI NC* ");
}

TEST_F(StaffCommandsTest, VisualizzaTuttiBringsNoRowBackAndClearsNoCheck) {
    check({0});
    press(ComandoCollab::soloSelezionati);
    press(ComandoCollab::visualizzaTutti);
    EXPECT_EQ(rows(), "RB* ");
}

TEST_F(StaffCommandsTest, VisualizzaTuttiWithNothingRememberedDoesNothing) {
    check({2});
    press(ComandoCollab::visualizzaTutti);
    EXPECT_EQ(rows(), "RB BI 7 * NC ");
}

TEST_F(StaffCommandsTest, EachUseOfSoloISelezionatiRemembersAfresh) {
    fillNumbered(4);
    check({1, 3});
    press(ComandoCollab::soloSelezionati);
    fillNumbered(4);
    check({2});
    press(ComandoCollab::soloSelezionati);
    fillNumbered(4);
    press(ComandoCollab::visualizzaTutti);
    EXPECT_EQ(rows(), "XX XX XX* XX ");
}

TEST_F(StaffCommandsTest, ANewFillingBringsTheRowsBackAndTheRememberedChecksWithThem) {
    check({1, 3});
    press(ComandoCollab::soloSelezionati);
    fill({{"RB", "Rossi Bruno"}, {"BI", "Bianchi Rosa"}, {"7 ", "Verdi Ugo"}, {"NC", "Conti"}});
    press(ComandoCollab::visualizzaTutti);
    EXPECT_EQ(rows(), "RB BI* 7  NC* ");
}

TEST_F(StaffCommandsTest, ClosingForgetsTheRememberedPositions) {
    check({0});
    press(ComandoCollab::soloSelezionati);
    form.unload();
    form.show();
    press(ComandoCollab::deselezionaTutti);
    press(ComandoCollab::visualizzaTutti);
    EXPECT_EQ(rows(), "RB ");
}

TEST_F(StaffCommandsTest, ACheckOutsideTheListDoesNothing) {
    check({-1, 4});
    EXPECT_EQ(lista.spuntate(), 0);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(StaffCommandsTest, TheCountSaysHowManyAreChecked) {
    EXPECT_EQ(form.conteggio(), "0 spuntati su 4");
    check({2});
    EXPECT_EQ(form.conteggio(), "1 spuntato su 4");
    check({0, 1});
    EXPECT_EQ(form.conteggio(), "3 spuntati su 4");
}

TEST_F(StaffCommandsTest, TheCountSaysHowManyRowsWereTakenOutUntilANewFilling) {
    press(ComandoCollab::selezionaTutti);
    press(ComandoCollab::soloSelezionati);
    EXPECT_EQ(form.conteggio(), "4 spuntati su 4");
    form.List_Prenotazione_ItemCheck(0, false);
    press(ComandoCollab::soloSelezionati);
    EXPECT_EQ(form.conteggio(), "3 spuntati su 3, 1 tolto dall'elenco");
    form.List_Prenotazione_ItemCheck(0, false);
    form.List_Prenotazione_ItemCheck(1, false);
    press(ComandoCollab::soloSelezionati);
    press(ComandoCollab::ordina);
    EXPECT_EQ(form.conteggio(), "1 spuntato su 1, 3 tolti dall'elenco");
    lista.svuota();
    EXPECT_EQ(form.conteggio(), "0 spuntati su 0");
}

} // namespace
} // namespace planner::test
