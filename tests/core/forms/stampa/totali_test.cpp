// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "stampa_fixture.h"

namespace planner::test {

namespace {

using testing::ElementsAre;

struct TotaliMostratiTest : StampaFixture {
    TotaliMostrati totali() const { return totaliMostrati(bench.controlli, bench.sessione); }
};

} // namespace

TEST_F(TotaliMostratiTest, EachStaffMemberHasTheSevenOfTheShownPeriod) {
    bench.putRighe({riga("RB", "20060301", {{1, "00002"}, {5, "00001"}, {7, "00004"}}),
                    riga("RB", "20060331", {{11, "00009"}}), riga("RB", "20060401", {{1, "00005"}}),
                    riga("BI", "20060302", {{9, "00003"}})});
    bench.init("M", "20060315");
    const TotaliMostrati shown = totali();
    EXPECT_THAT(shown.nomi, ElementsAre("Scadenze", "Pratiche", "Impegni vari", "Note riservate",
                                        "Scadenze concluse", "Pratiche concluse", "Altro"));
    ASSERT_EQ(shown.righe.size(), 4u);
    EXPECT_EQ(shown.righe[1].nome, "Rossi Bruno");
    EXPECT_THAT(shown.righe[1].numeri, ElementsAre(3, 0, 0, 4, 0, 0, 9));
    EXPECT_THAT(shown.righe[0].numeri, ElementsAre(0, 0, 0, 0, 3, 0, 0));
    EXPECT_EQ(shown.nomeRighe, "Collaboratore");
}

TEST_F(TotaliMostratiTest, BeyondTheTableThereIsNoNumber) {
    bench.init("M", "20060315"); // one record: the table ends after the second row
    EXPECT_EQ(totali().righe[1].numeri.front(), 0);
    EXPECT_EQ(totali().righe[3].numeri.front(), std::nullopt);
}

TEST_F(TotaliMostratiTest, TheVariantWithoutDeadlinesHasNoneHere) {
    bench.sessione.FlagFinestra = "B";
    bench.init("M", "20060315");
    EXPECT_THAT(totali().nomi,
                ElementsAre("Pratiche", "Impegni vari", "Note riservate", "Pratiche concluse", "Altro"));
}

TEST_F(TotaliMostratiTest, AYearHasThoseOfItsMonthsUnderTheirOwnNames) {
    auto mesi = annoPlanner("2006", {{3, 3}, {3, 4}}); // the first two days of March
    mesi[2].testi[2].assign("000010000200003000040000500006000070000800009");
    mesi[2].testi[3].assign("00001");
    bench.putAnnuale(mesi);
    bench.init("A", "20060315");
    const TotaliMostrati shown = totali();
    EXPECT_EQ(shown.nomeRighe, "Mese");
    EXPECT_EQ(shown.nomi.at(5), "Block notes");
    ASSERT_EQ(shown.righe.size(), 12u);
    EXPECT_EQ(shown.righe[2].nome, "Marzo");
    EXPECT_GT(shown.righe[2].numeri.front(), 0);
    EXPECT_EQ(shown.righe[3].numeri.front(), 0);
}

} // namespace planner::test
