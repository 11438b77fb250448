// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/colpo_docchio.h"
#include "plcal_fixture.h"

namespace planner::test {
namespace {

/// What the whole office has in March 2006, and on the 15th: Bianchi, Rossi and Verdi.
class ColpoDocchioTest : public PlcalFixture {
protected:
    void SetUp() override {
        bench.putRighe({riga("RB", "20060315", {{1, "00002"}, {6, "00001"}}),
                        conOrario(riga("BI", "20060315", {{5, "00001"}}), "09", "30", "0000130"),
                        conOrario(riga("BI", "20060315", {{8, "00001"}}), "10", "00", "0000100"),
                        conOrario(riga("RB", "20060315", {{8, "00001"}}), "10", "30", "0000015"),
                        conOrario(riga("??", "20060315", {{8, "00001"}}), "10", "00", "0000100"),
                        riga("RB", "20060316", {{1, "1"}, {9, "1"}}), riga("RB", "20060401", {{1, "5"}}),
                        RigaPlanner{}, RigaPlanner{}});
    }
    std::string column(int column) { return fraseColonna(controlli, *controlli.tipoVisibile, column); }
    std::string name(int row) { return fraseTotali(controlli, sessione, *controlli.tipoVisibile, row); }
};

TEST_F(ColpoDocchioTest, AMonthCountsTheDeadlinesOfEachDay) {
    open("M");
    EXPECT_EQ(controlli.Flxm.riepilogo(17), 3);
    EXPECT_EQ(controlli.Flxm.riepilogo(18), 1);
    EXPECT_EQ(controlli.Flxm.riepilogo(19), 0);
    EXPECT_EQ(controlli.Flxm.riepilogoMassimo(), 3);
    for (const int none : {-1, 0, 1, 2, 34, 37, 1000}) { // March begins in column 3
        EXPECT_EQ(controlli.Flxm.riepilogo(none), std::nullopt) << none;
    }
    EXPECT_EQ(column(17), "mercoledì 15 marzo 2006: 3 scadenze dello studio");
    EXPECT_EQ(column(18), "giovedì 16 marzo 2006: 1 scadenza dello studio");
    EXPECT_EQ(column(19), "venerdì 17 marzo 2006: nessuna scadenza dello studio");
    EXPECT_EQ(column(1), "");
}

TEST_F(ColpoDocchioTest, TheNextMonthCountsItsOwn) {
    open("M");
    form.bselm_Click(1);
    EXPECT_EQ(column(6), "sabato 1 aprile 2006: 5 scadenze dello studio");
}

TEST_F(ColpoDocchioTest, ADayCountsWhoIsFreeAtEachQuarter) {
    open("G");
    EXPECT_EQ(controlli.flxg.riepilogoMassimo(), 3);
    EXPECT_EQ(column(1), "3 liberi alle 0:00");
    EXPECT_EQ(column(38), "3 liberi alle 9:15");
    EXPECT_EQ(column(39), "2 liberi alle 9:30") << "Bianchi is busy";
    EXPECT_EQ(column(41), "2 liberi alle 10:00") << "twice, and what is nobody's counts for nobody";
    EXPECT_EQ(column(43), "1 libero alle 10:30");
    EXPECT_EQ(column(44), "2 liberi alle 10:45");
    EXPECT_EQ(column(0), "");
    EXPECT_EQ(column(97), "");
}

TEST_F(ColpoDocchioTest, AYearHasNoBars) {
    open("A");
    EXPECT_EQ(column(17), "");
    EXPECT_EQ(name(3), "");
}

TEST_F(ColpoDocchioTest, AGridThatIsNotShownSaysNothing) {
    open("G");
    EXPECT_EQ(fraseColonna(controlli, TipoPlanner::Mensile, 17), "");
    EXPECT_EQ(fraseTotali(controlli, sessione, TipoPlanner::Mensile, 3), "");
}

TEST_F(ColpoDocchioTest, ANameHasItsTotalsOfThePeriod) {
    open("M");
    EXPECT_EQ(name(2), "Bianchi Rosa: 1 scadenza, 1 impegno vario");
    EXPECT_EQ(name(3), "Rossi Bruno: 3 scadenze (1 conclusa), 1 pratica, 1 impegno vario");
    EXPECT_EQ(name(4), "Verdi Ugo: nessun impegno");
    EXPECT_EQ(name(5), "*NON ASSEGNATE*: 1 impegno vario");
    EXPECT_EQ(name(8), "") << "a spare row";
    EXPECT_EQ(name(-1), "");
    EXPECT_EQ(name(1000), "");
}

TEST_F(ColpoDocchioTest, AWindowWithoutDeadlinesCountsNone) {
    sessione.FlagFinestra = "B";
    open("M");
    EXPECT_EQ(column(17), "");
    EXPECT_EQ(name(3), "Rossi Bruno: 1 pratica, 1 impegno vario");
}

TEST_F(ColpoDocchioTest, AnOfficeOfNobodyHasNoBars) {
    bench.putCollaboratori({});
    open("G");
    EXPECT_EQ(column(41), "");
}

} // namespace
} // namespace planner::test
