// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "forms/plcal/sentences.h"
#include "plcal_fixture.h"

namespace planner::test {
namespace {

class SentencesTest : public PlcalFixture {
protected:
    void SetUp() override {
        bench.putRighe({riga("RB", "20060315", {{1, "00002"}, {6, "00001"}, {7, "00001"}, {8, "00001"}}),
                        conOrario(riga("BI", "20060315", {{5, "00001"}}), "09", "30", "0000130"),
                        RigaPlanner{}, RigaPlanner{}});
    }
    std::string at(int row, int column) {
        return fraseCella(controlli, sessione, *controlli.tipoVisibile, row, column);
    }
};

TEST_F(SentencesTest, ADayNamesStaffMemberDateAndKinds) {
    open("M");
    EXPECT_EQ(at(3, 17),
              "Rossi Bruno, mercoledì 15 marzo 2006: scadenze, pratiche, impegni vari, note riservate");
    EXPECT_EQ(at(3, 18), "Rossi Bruno, giovedì 16 marzo 2006");
}

TEST_F(SentencesTest, TheKindsAreNamedInThePlainDisplayToo) {
    open("M");
    form.Toolbar1_ButtonClick("dettno");
    EXPECT_EQ(at(2, 17), "Bianchi Rosa, mercoledì 15 marzo 2006: scadenze");
}

TEST_F(SentencesTest, ACellOfNoDayNamesTheStaffMemberOnly) {
    open("M");
    EXPECT_EQ(at(3, 1), "Rossi Bruno");
    EXPECT_EQ(at(9, 17), "mercoledì 15 marzo 2006") << "a spare row";
    EXPECT_EQ(at(9, 1), "");
}

TEST_F(SentencesTest, AQuarterOfTheDayNamesItsHourAndTheAppointmentThatCoversIt) {
    open("G");
    EXPECT_EQ(at(1, 39), "Bianchi Rosa, mercoledì 15 marzo 2006, ore 9:30: scadenze");
    EXPECT_EQ(at(1, 1), "Bianchi Rosa, mercoledì 15 marzo 2006, ore 0:00");
}

TEST_F(SentencesTest, AYearlyDayNamesItsDateAndTotals) {
    auto mesi = annoPlanner("2006", {{3, 17}});
    mesi[2].testi[16].assign("00010002000300000000000000000004000000000000");
    bench.putAnnuale(mesi);
    open("A");
    EXPECT_EQ(at(3, 17),
              "mercoledì 15 marzo 2006: scadenze 1, scadenze concluse 3, pratiche 2, note riservate 4");
    EXPECT_EQ(at(3, 18), "giovedì 16 marzo 2006");
    EXPECT_EQ(at(2, 1), "");
}

TEST_F(SentencesTest, NamesAreUtf8AndNeverMarkup) {
    bench.putCollaboratori({collaboratore("RB", "<b>Nicol\xF2</b> %1 &A")});
    open("M");
    EXPECT_EQ(at(2, 18), "<b>Nicolò</b> %1 &A, giovedì 16 marzo 2006");
}

TEST_F(SentencesTest, EveryWeekdayAndMonthHasItsName) {
    EXPECT_EQ(dataEstesa(parseDate("20060101").value()), "domenica 1 gennaio 2006");
    EXPECT_EQ(dataEstesa(parseDate("20060206").value()), "lunedì 6 febbraio 2006");
    EXPECT_EQ(dataEstesa(parseDate("20060502").value()), "martedì 2 maggio 2006");
    EXPECT_EQ(dataEstesa(parseDate("20060901").value()), "venerdì 1 settembre 2006");
    EXPECT_EQ(dataEstesa(parseDate("20061230").value()), "sabato 30 dicembre 2006");
}

TEST_F(SentencesTest, OutsideTheDataThereIsNothingToSay) {
    open("M");
    EXPECT_EQ(at(-1, 3), "");
    EXPECT_EQ(at(3, 0), "");
}

} // namespace
} // namespace planner::test
