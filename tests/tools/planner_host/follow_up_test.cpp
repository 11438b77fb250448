// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/follow_up.h"

#include <array>
#include <gmock/gmock.h>
#include <ostream>

namespace planner::toolstest {

namespace {

TransitRequest sentRequest() {
    TransitRequest richiesta;
    richiesta.riservato1.assign("pratica1");
    richiesta.tipoplanner.assign("M");
    richiesta.startdate.assign("20060101");
    richiesta.enddate.assign("20061231");
    richiesta.riservato2.assign("note dell'host");
    richiesta.collab.assign("BL");
    richiesta.valret.assign("20060315");
    return richiesta;
}

Seguito followUp(std::string_view valret) {
    return daiSeguito(sentRequest(), leggiRisposta(valret).value());
}

struct Case {
    const char* valret;
    const char* testo;
    const char* tipo; // of the next request; null when there is none
    const char* inizio;
    const char* fine;
    const char* giorno;
    int annoArchivio; // 0 for none
};

/// Names the test after the answer.
void PrintTo(const Case& what, std::ostream* out) {
    *out << what.valret;
}

constexpr std::array Cases{
    Case{"20060410RBE", "il planner è chiuso", nullptr, nullptr, nullptr, nullptr, 0},
    Case{"20060410RBF", "applica i filtri", "M", "20060101", "20061231", "20060410", 0},
    Case{"20060410RBA", "apre l'agenda", "M", "20060101", "20061231", "20060410", 0},
    Case{"20060410RBC", "collaboratore scelto", "M", "20060101", "20061231", "20060410", 0},
    Case{"20060410RBD", "impegni del giorno", "M", "20060101", "20061231", "20060410", 0},
    Case{"20060410RBI", "inserire l'impegno", "M", "20060101", "20061231", "20060410", 0},
    Case{"20060410RBT", "inserire la pratica", "M", "20060101", "20061231", "20060410", 0},
    Case{"20060410RB ", "niente da fare", "M", "20060101", "20061231", "20060410", 0},
    Case{"20060410RBP", "prepara l'anno 2005", "A", "20050101", "20051231", "20050410", 2005},
    Case{"20060410RBS", "prepara l'anno 2007", "A", "20070101", "20071231", "20070410", 2007},
    Case{"20080229RBS", "prepara l'anno 2009", "A", "20090101", "20091231", "20090228", 2009},
    Case{"20080229RBP", "prepara l'anno 2007", "A", "20070101", "20071231", "20070228", 2007},
};

class FollowUp : public testing::TestWithParam<Case> {};

} // namespace

TEST_P(FollowUp, IsWhatTheLetterAsksFor) {
    const Case& expected = GetParam();
    const Seguito seguito = followUp(expected.valret);
    EXPECT_THAT(seguito.testo, testing::HasSubstr(expected.testo));
    EXPECT_EQ(seguito.annoArchivio.value_or(0), expected.annoArchivio);
    ASSERT_EQ(seguito.richiesta.has_value(), expected.tipo != nullptr);
    if (seguito.richiesta) {
        EXPECT_EQ(seguito.richiesta->tipoplanner.view(), expected.tipo);
        EXPECT_EQ(seguito.richiesta->startdate.view(), expected.inizio);
        EXPECT_EQ(seguito.richiesta->enddate.view(), expected.fine);
        EXPECT_EQ(seguito.richiesta->valret.view(), std::string(expected.giorno) + "   ");
    }
}

TEST_P(FollowUp, KeepsTheHostsOwnFields) {
    const Seguito seguito = followUp(GetParam().valret);
    if (seguito.richiesta) {
        EXPECT_EQ(seguito.richiesta->riservato1.view(), "pratica1");
        EXPECT_EQ(seguito.richiesta->riservato2.trimmedRight(), "note dell'host");
        EXPECT_EQ(seguito.richiesta->collab.view(), "BL");
    }
}

INSTANTIATE_TEST_SUITE_P(Letters, FollowUp, testing::ValuesIn(Cases));

} // namespace planner::toolstest
