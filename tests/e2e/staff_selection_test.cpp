// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_accessibile.h"

namespace planner::e2e {

namespace {

const std::string Elenco = "Selezione Collaboratori";

class StaffSelection : public ScenarioAccessibile {
protected:
    StaffSelection() { archivio.writeStaff({"Neri Carla", "Verdi Anna", "Bianchi Bruno", "Rossi Dario"}); }

    Finestra openList() {
        request(asked);
        lookAt("Planner Mensile");
        return openListAgain();
    }
    Finestra openListAgain() const {
        finestra().press("ctrl+l");
        return listInFront();
    }
    Finestra listInFront() const {
        Finestra list = window(planner(), Elenco);
        EXPECT_TRUE(comesTrue([&] { return list.isActive(); })) << "it comes in front by itself";
        return list;
    }
    bool showsTheList() const { return Finestra::find(schermo, planner(), Elenco).has_value(); }

    /// The staff member's code as it stands in a row of the list.
    static Accessibilita::Cella cell(int riga, const std::string& nome, const std::string& codice,
                                     const std::string& spunta = "non spuntato") {
        return {"Collaboratori", riga, 0, nome + ", " + codice + ", " + nome + ", " + spunta};
    }
    void clickOnRossi() const { bus.click(planner(), cell(3, "Rossi Dario", "04")); }

    /// Searches with the keyboard alone.
    void searchFor(const Finestra& list, const std::string& text) const {
        list.press("ctrl+f");
        const Finestra question = window(planner(), "Cerca collaboratore");
        question.type(text);
        question.press("Return");
        EXPECT_TRUE(question.disappears());
    }

    /// Checks the answer of a list that has been confirmed, byte for byte: the code comes after the day.
    void checkConfirmed(const std::string& codice, const std::string& day = "20060331") {
        EXPECT_EQ(ospite.answer(), answeredWith(day + codice + "C", asked));
        EXPECT_TRUE(comesToWait());
    }
    /// Checks that nothing has been answered yet, by closing the planner with nobody selected.
    void checkNothingAnswered() {
        EXPECT_FALSE(ospite.isTold());
        EXPECT_EQ(archivio.transit(), asked);
        finestra().press("Escape");
        EXPECT_EQ(ospite.answer(), closedOn("20060331", asked));
        EXPECT_EQ(planner().exitCode(), 0);
    }

    const std::string asked = requestBytes('M', "20060331");
};

} // namespace

TEST_F(StaffSelection, ComesWithItsKeysAndLeavesThePlannerUsable) {
    const Finestra list = openList();
    EXPECT_EQ(list.title(), Elenco);
    bus.waitFor(planner(), "0 spuntati su 4");
    finestra().activate();
    click("Mese successivo");
    bus.waitFor(planner(), "Mese di Aprile 2006");
    EXPECT_TRUE(list.isVisible());
}

TEST_F(StaffSelection, ComesWithItsButton) {
    request(asked);
    lookAt("Planner Mensile");
    click(Elenco);
    listInFront();
}

TEST_F(StaffSelection, ShowsTheWholeStaffInTheOrderOfTheArchive) {
    openList();
    bus.waitFor(planner(), cell(0, "Neri Carla", "01"));
    bus.waitFor(planner(), cell(1, "Verdi Anna", "02"));
    bus.waitFor(planner(), cell(2, "Bianchi Bruno", "03"));
    bus.waitFor(planner(), cell(3, "Rossi Dario", "04"));
}

TEST_F(StaffSelection, ASearchSelectsTheRowThatHoldsTheText) {
    const Finestra list = openList();
    searchFor(list, "ross");
    list.press("Return");
    checkConfirmed("04");
}

TEST_F(StaffSelection, ASearchThatFindsNobodySaysSoAndKeepsTheSelection) {
    const Finestra list = openList();
    clickOnRossi();
    searchFor(list, "Gialli");
    confirmMessage(planner(), "information", "Collaboratore non trovato");
    list.press("Return");
    checkConfirmed("04");
}

TEST_F(StaffSelection, TheSpaceBarChecksTheSelectedRowAndClearsItAgain) {
    const Finestra list = openList();
    clickOnRossi();
    list.press("space");
    bus.waitFor(planner(), "1 spuntato su 4");
    bus.waitFor(planner(), cell(3, "Rossi Dario", "04", "spuntato"));
    list.press("space");
    bus.waitFor(planner(), "0 spuntati su 4");
    bus.waitFor(planner(), cell(3, "Rossi Dario", "04"));
}

TEST_F(StaffSelection, OnlyTheCheckedRowsStayUntilTheListIsFilledAnew) {
    const Finestra list = openList();
    clickOnRossi();
    list.press("space");
    click("Visualizza solo i selezionati");
    bus.waitFor(planner(), "1 spuntato su 1, 3 tolti dall'elenco");
    bus.waitFor(planner(), cell(0, "Rossi Dario", "04", "spuntato"));
    openListAgain();
    bus.waitFor(planner(), "0 spuntati su 4");
    EXPECT_TRUE(list.isVisible());
}

TEST_F(StaffSelection, SortingGoesUpAndDownAndUpAgain) {
    openList();
    for (const bool ascending : {true, false, true}) {
        click("Ordina alfabeticamante");
        bus.waitFor(planner(), cell(ascending ? 0 : 3, "Bianchi Bruno", "03"));
        bus.waitFor(planner(), cell(ascending ? 1 : 2, "Neri Carla", "01"));
        bus.waitFor(planner(), cell(ascending ? 2 : 1, "Rossi Dario", "04"));
        bus.waitFor(planner(), cell(ascending ? 3 : 0, "Verdi Anna", "02"));
    }
}

TEST_F(StaffSelection, TheEnterKeyAnswersC) {
    const Finestra list = openList();
    clickOnRossi();
    list.press("Return");
    checkConfirmed("04");
}

TEST_F(StaffSelection, TheConfirmButtonAnswersCWithTheDayThatTheCalendarShowsThen) {
    openList();
    finestra().activate();
    click("Mese successivo");
    bus.waitFor(planner(), "Mese di Aprile 2006");
    window(planner(), Elenco).activate();
    clickOnRossi();
    click("Conferma selezioni");
    checkConfirmed("04", "20060430");
}

TEST_F(StaffSelection, ConfirmingWithNobodySelectedAsksForOneAndAnswersNothing) {
    const Finestra list = openList();
    click("Conferma selezioni");
    confirmMessage(planner(), "information",
                   "Scegliere un collaboratore prima di confermare: fare clic sulla sua riga (la spunta non "
                   "basta).");
    EXPECT_TRUE(list.isVisible());
    EXPECT_TRUE(finestra().isVisible());
    checkNothingAnswered();
}

TEST_F(StaffSelection, TheEscapeKeyClosesTheListOnlyAndAnswersNothing) {
    const Finestra list = openList();
    clickOnRossi();
    list.press("Escape");
    EXPECT_TRUE(list.disappears());
    EXPECT_TRUE(finestra().isVisible());
    checkNothingAnswered();
}

TEST_F(StaffSelection, TheCloseCommandOfTheWindowManagerClosesTheListOnly) {
    const Finestra list = openList();
    list.press("alt+F4");
    EXPECT_TRUE(list.disappears());
    EXPECT_TRUE(finestra().isVisible());
    checkNothingAnswered();
}

TEST_F(StaffSelection, ClosesWithThePlannerAndAnswersE) {
    const Finestra list = openList();
    clickOnRossi();
    finestra().press("alt+F4");
    EXPECT_EQ(ospite.answer(), closedOn("20060331", asked));
    EXPECT_TRUE(list.disappears());
    EXPECT_TRUE(finestra().disappears());
    EXPECT_EQ(planner().exitCode(), 0);
}

TEST_F(StaffSelection, ClosesWithAnyAnswer) {
    const Finestra list = openList();
    finestra().activate();
    press("Agenda");
    EXPECT_EQ(ospite.answer(), answeredWith("20060331  A", asked));
    EXPECT_TRUE(comesToWait());
    EXPECT_FALSE(list.isVisible());
}

TEST_F(StaffSelection, TheEscapeKeyInTheQuestionClosesTheQuestionOnly) {
    const Finestra list = openList();
    list.press("ctrl+f");
    const Finestra question = window(planner(), "Cerca collaboratore");
    question.press("Escape");
    EXPECT_TRUE(question.disappears());
    EXPECT_TRUE(list.isVisible());
    list.press("Escape");
    EXPECT_TRUE(list.disappears());
    checkNothingAnswered();
}

TEST_F(StaffSelection, DoesNotComeInTheYearlyPlanner) {
    request(requestBytes('A'));
    lookAt("Planner Annuale");
    finestra().press("ctrl+l");
    click(Elenco);
    // Keys and clicks are taken in their order: with this window there, those before have had their effect.
    finestra().press("shift+F1");
    const Finestra information = window(planner(), "Informazioni");
    EXPECT_FALSE(showsTheList());
    information.press("Escape");
    EXPECT_TRUE(information.disappears());
    finestra().press("Escape");
    EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes('A')));
}

TEST_F(StaffSelection, IsClosedWhenTheNextRequestComes) {
    const Finestra list = openList();
    clickOnRossi();
    list.press("Return");
    checkConfirmed("04");
    request(asked);
    lookAt("Planner Mensile");
    bus.waitFor(planner(), "Mese successivo");
    EXPECT_FALSE(showsTheList());
    openListAgain();
    bus.waitFor(planner(), "0 spuntati su 4");
    window(planner(), Elenco).press("Escape");
    checkNothingAnswered();
}

} // namespace planner::e2e
