// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_accessibile.h"

namespace planner::e2e {

namespace {

class ManyRequests : public ScenarioAccessibile {
protected:
    /// Has the monthly planner of 15 March go on by some months, picks a cell there, presses the buttons one
    /// after the other, and checks the answer.
    void answerInMonth(const std::string& letter, int months, const std::vector<std::string>& buttons) {
        const std::string asked = requestBytes('M', "20060315");
        request(asked);
        lookAt("Planner Mensile");
        for (int i = 0; i < months; ++i) {
            click("Mese successivo");
        }
        const Casella picked = casellaConScadenze(archivio, 3 + months);
        pick(picked);
        for (const std::string& button : buttons) {
            click(button);
        }
        checkAnswer(picked.giorno + picked.codice + letter, asked);
    }

    void answerInYear(const std::string& letter, int month, const std::string& button) {
        const std::string asked = requestBytes('A', "20061225");
        request(asked);
        lookAt("Planner Annuale");
        const Casella picked = giornoVuoto(archivio, month);
        pick(picked);
        click(button);
        checkAnswer(picked.giorno + picked.codice + letter, asked);
    }

    void checkAnswer(const std::string& answer, const std::string& asked) {
        SCOPED_TRACE(answer);
        EXPECT_EQ(ospite.answer(), answeredWith(answer, asked));
        if (!answer.ends_with('E')) {
            EXPECT_TRUE(comesToWait());
        }
    }
};

} // namespace

TEST_F(ManyRequests, OneProcessAnswersThemAllAndEndsWithE) {
    answerInMonth("D", 0, {"Consultazione"});
    answerInMonth("F", 1, {"Filtri"});
    answerInMonth("A", 2, {"Agenda"});
    answerInYear("P", 5, "Anno precedente");
    answerInMonth("I", 1, {"Inserimento impegni", "Conferma"});
    answerInYear("S", 11, "Anno successivo");
    answerInMonth("T", 0, {"Inserimento impegni", "Pratica", "Conferma"});
    answerInMonth("F", 0, {"Filtri"});
    answerInYear("S", 2, "Anno successivo");
    answerInMonth("D", 3, {"Consultazione"});
    answerInMonth("I", 0,
                  {"Mese successivo", "Mese precedente", "Inserimento impegni", "Impegno", "Conferma"});
    answerInMonth("E", 1, {"Uscita"});
    EXPECT_EQ(planner().exitCode(), 0);
}

} // namespace planner::e2e
