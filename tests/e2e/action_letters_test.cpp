// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_accessibile.h"

namespace planner::e2e {

namespace {

class ActionLetters : public ScenarioAccessibile {
protected:
    /// Shows the monthly planner of another day, and picks a cell with deadlines.
    void pickInMonth() {
        request(march);
        lookAt("Planner Mensile");
        picked = casellaConScadenze(archivio, 3);
        pick(picked);
    }
    void pickInYear() {
        request(year);
        lookAt("Planner Annuale");
        picked = giornoVuoto(archivio, 5);
        pick(picked);
    }

    /// Checks the answer byte for byte, and that the planner waits without being noticed.
    void checkAnswer(const std::string& letter, const std::string& asked) {
        EXPECT_EQ(ospite.answer(), answeredWith(picked.giorno + picked.codice + letter, asked));
        EXPECT_TRUE(comesToWait());
    }

    const std::string march = requestBytes('M', "20060331");
    const std::string year = requestBytes('A', "20061225");
    Casella picked;
};

} // namespace

TEST_F(ActionLetters, TheExitButtonAnswersE) {
    pickInMonth();
    press("Uscita");
    EXPECT_EQ(ospite.answer(), answeredWith(picked.giorno + picked.codice + "E", march));
    EXPECT_EQ(planner().exitCode(), 0);
}

TEST_F(ActionLetters, TheFiltersAnswerF) {
    pickInMonth();
    click("Filtri");
    checkAnswer("F", march);
}

TEST_F(ActionLetters, TheAgendaAnswersA) {
    pickInMonth();
    press("Agenda");
    checkAnswer("A", march);
}

TEST_F(ActionLetters, TheConsultationAnswersD) {
    pickInMonth();
    click("Consultazione");
    checkAnswer("D", march);
}

TEST_F(ActionLetters, ANewAppointmentAnswersI) {
    pickInMonth();
    click("Inserimento impegni");
    click("Impegno");
    click("Conferma");
    checkAnswer("I", march);
}

TEST_F(ActionLetters, ANewCaseFileAnswersT) {
    pickInMonth();
    click("Inserimento impegni");
    press("Pratica");
    press("Conferma");
    checkAnswer("T", march);
}

TEST_F(ActionLetters, ADialogGivenUpAnswersNothing) {
    pickInMonth();
    click("Inserimento impegni");
    const Finestra dialog = window(planner(), "Inserimento Impegni");
    click("Pratica");
    click("Annulla");
    EXPECT_TRUE(dialog.disappears());
    press("Consultazione");
    checkAnswer("D", march);
}

TEST_F(ActionLetters, ThePreviousYearAnswersP) {
    pickInYear();
    click("Anno precedente");
    checkAnswer("P", year);
}

TEST_F(ActionLetters, TheNextYearAnswersS) {
    pickInYear();
    press("Anno successivo");
    checkAnswer("S", year);
}

} // namespace planner::e2e
