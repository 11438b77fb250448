// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plfcollab_fixture.h"

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Message NotFound{MessageIcon::Information, "Planner", "Collaboratore non trovato"};

class StaffSearchTest : public PlfcollabFixture {
protected:
    std::optional<int> search(std::optional<std::string> text) {
        vista.risposta = std::move(text);
        press(ComandoCollab::cerca);
        return lista.selezionata();
    }
};

TEST_F(StaffSearchTest, TheQuestionBearsTheCommandsTitle) {
    search(std::nullopt);
    EXPECT_THAT(journal, ElementsAre("ask [Cerca collaboratore]", "update staff"));
}

TEST_F(StaffSearchTest, AFoundRowIsSelectedAndScrolledIntoSight) {
    EXPECT_EQ(search("Verdi"), 2);
    EXPECT_THAT(journal, testing::Contains("staff row in sight 2"));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(StaffSearchTest, TheTextMayStandAnywhereInTheName) {
    EXPECT_EQ(search("anchi"), 1);
    EXPECT_EQ(search("Bruno"), 0);
}

TEST_F(StaffSearchTest, TheTextMayStandInTheCode) {
    EXPECT_EQ(search("bi"), 1);
    EXPECT_EQ(search("7"), 2);
}

TEST_F(StaffSearchTest, TheJobTitleIsNotSearched) {
    EXPECT_EQ(search("Avvocato"), std::nullopt);
    EXPECT_THAT(messages(), ElementsAre(NotFound));
}

TEST_F(StaffSearchTest, CaseDoesNotMatter) {
    EXPECT_EQ(search("vErDi UGO"), 2);
}

TEST_F(StaffSearchTest, AccentedNamesAreComparedAsTheCharactersTheyStandFor) {
    EXPECT_EQ(search("nicolò"), 3);
}

TEST_F(StaffSearchTest, ATextThatNoRowHoldsIsSaidAndLeavesTheSelection) {
    form.List_Prenotazione_ItemClick(1);
    EXPECT_EQ(search("Neri"), 1);
    EXPECT_THAT(messages(), ElementsAre(NotFound));
}

TEST_F(StaffSearchTest, TheSearchBeginsBehindTheSelectedRowAndGoesRoundTheEnd) {
    fill({{"01", "Rossi A"}, {"02", "Bianchi"}, {"03", "Rossi B"}, {"04", "Verdi"}});
    EXPECT_EQ(search("rossi"), 0) << "nothing is selected: from the top";
    EXPECT_EQ(search("rossi"), 2);
    EXPECT_EQ(search("rossi"), 0);
}

TEST_F(StaffSearchTest, TheSelectedRowItselfComesLast) {
    form.List_Prenotazione_ItemClick(2);
    EXPECT_EQ(search("verdi"), 2);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(StaffSearchTest, ACancelledQuestionDoesNothing) {
    form.List_Prenotazione_ItemClick(1);
    EXPECT_EQ(search(std::nullopt), 1);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(StaffSearchTest, AnEmptyTextDoesNothing) {
    EXPECT_EQ(search(""), std::nullopt);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(StaffSearchTest, TheQuestionOffersTheLastTextAgain) {
    search("Verdi");
    search(std::nullopt);
    search("");
    search("Neri");
    search("Rossi");
    EXPECT_THAT(vista.offerti, ElementsAre("", "Verdi", "Verdi", "Verdi", "Neri"));
}

TEST_F(StaffSearchTest, SearchingAgainTakesTheLastTextWithoutAsking) {
    fill({{"01", "Rossi A"}, {"02", "Rossi B"}});
    search("rossi");
    form.cercaAncora();
    EXPECT_EQ(lista.selezionata(), 1);
    EXPECT_EQ(vista.offerti.size(), 1u);
}

TEST_F(StaffSearchTest, SearchingAgainWithoutAFormerTextAsks) {
    vista.risposta = "Verdi";
    form.cercaAncora();
    EXPECT_EQ(lista.selezionata(), 2);
    EXPECT_EQ(vista.offerti.size(), 1u);
}

TEST_F(StaffSearchTest, ATextOfAccentsAloneIsNotFound) {
    struct FoldsToNothing : PlainCollation {
        std::string folded(std::string_view) const override { return {}; }
    } const onlyAccents;
    plfcollab other(sessione, calendario,
                    {[this]() -> VistaPlfcollab& { return vista; }, messaggi, onlyAccents});
    other.List_Prenotazione().aggiungi("RB", "Rossi", "");
    vista.risposta = "\u0301";
    other.Toolbar_pren_ButtonClick(static_cast<int>(ComandoCollab::cerca));
    EXPECT_EQ(other.List_Prenotazione().selezionata(), std::nullopt);
    EXPECT_THAT(messages(), ElementsAre(NotFound));
}

TEST_F(StaffSearchTest, AnEmptyListHoldsNothing) {
    fill({});
    EXPECT_EQ(search("Rossi"), std::nullopt);
    EXPECT_THAT(messages(), ElementsAre(NotFound));
}

TEST_F(StaffSearchTest, OnlyTheRowsInTheListAreSearched) {
    check({1});
    press(ComandoCollab::soloSelezionati);
    EXPECT_EQ(search("Rossi"), std::nullopt);
    EXPECT_EQ(search("Bianchi"), 0);
}

} // namespace
} // namespace planner::test
