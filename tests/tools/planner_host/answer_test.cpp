// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/answer.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

namespace planner::toolstest {

namespace {

std::string rossi(std::string_view codice) {
    return codice == "RB" ? "Rossi Bruno" : "";
}

} // namespace

TEST(Answer, HasADayAStaffCodeAndALetter) {
    const auto risposta = leggiRisposta("20060315RBD");
    ASSERT_TRUE(risposta);
    EXPECT_EQ(formatDate(risposta->giorno), "20060315");
    EXPECT_EQ(risposta->collab.view(), "RB");
    EXPECT_EQ(risposta->azione, 'D');
}

TEST(Answer, IsNoAnswerWithoutADayOrALetter) {
    constexpr std::array wrong{"",
                               "20060315RB",
                               "20060315RBDD",
                               "20060231RBD",
                               "00000000RBD",
                               "2006031 RBD",
                               "20060315RBX",
                               "20060315RBd",
                               "           "};
    for (const char* valret : wrong) {
        EXPECT_FALSE(leggiRisposta(valret)) << valret;
    }
}

TEST(Answer, IsDescribedInWords) {
    EXPECT_EQ(descriviRisposta("20060315RBD", rossi),
              "20060315RBD  giorno 15/03/2006, collaboratore RB (Rossi Bruno), D = consultazione del giorno");
    EXPECT_EQ(descriviRisposta("20060315  E", rossi),
              "20060315  E  giorno 15/03/2006, nessun collaboratore, E = chiusura del planner");
    EXPECT_EQ(descriviRisposta("20060315ZZA", rossi),
              "20060315ZZA  giorno 15/03/2006, collaboratore ZZ (sconosciuto), A = apertura dell'agenda");
    EXPECT_EQ(descriviRisposta("20060315   ", rossi),
              "20060315     giorno 15/03/2006, nessun collaboratore, spazio = nessuna azione");
}

TEST(Answer, IsSaidToBeInvalidWithoutSpoilingTheTerminal) {
    EXPECT_EQ(descriviRisposta("\x1B[2J\xE8xyzabc", rossi), ".[2Jèxyzabc  risposta non valida");
}

TEST(Answer, EveryLetterHasAMeaning) {
    for (const char letter : std::string_view("EFACDIPST ")) {
        EXPECT_FALSE(significatoAzione(letter).empty()) << letter;
    }
    EXPECT_TRUE(significatoAzione('X').empty());
}

} // namespace planner::toolstest
