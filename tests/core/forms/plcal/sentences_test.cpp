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
        return fraseCella(controlli, sessione, *controlli.tipoVisibile, {row, column});
    }
    std::string nameOf(int row, int column) {
        return nomeCasella(controlli, sessione, *controlli.tipoVisibile, {row, column});
    }
};

TEST_F(SentencesTest, ADaySaysStaffMemberDateAndHowManyOfEachKind) {
    open("M");
    EXPECT_EQ(
        at(3, 17),
        "Rossi Bruno, mercoledì 15 marzo 2006: 2 scadenze, 1 pratica, 1 impegno vario, 1 nota riservata");
    EXPECT_EQ(at(3, 18), "Rossi Bruno, giovedì 16 marzo 2006");
}

TEST_F(SentencesTest, TheKindsAreNamedInThePlainDisplayToo) {
    open("M");
    form.Toolbar1_ButtonClick("dettno");
    EXPECT_EQ(at(2, 17), "Bianchi Rosa, mercoledì 15 marzo 2006: 1 scadenza");
}

TEST_F(SentencesTest, ACellIsCalledWhatItHolds) {
    open("M");
    EXPECT_EQ(nameOf(3, 17), "scadenze, pratiche, impegni vari, note riservate");
    EXPECT_EQ(nameOf(3, 18), "nessun impegno");
    EXPECT_EQ(nameOf(3, 1), "nessun giorno");
    EXPECT_EQ(nameOf(9, 17), "riga libera");
    EXPECT_EQ(nameOf(99, 17), "");
    open("G");
    EXPECT_EQ(nameOf(1, 39), "scadenze");
    EXPECT_EQ(nameOf(1, 1), "nessun impegno");
}

TEST_F(SentencesTest, RowsAreCalledByTheirPersonAndColumnsByTheirDayOrHour) {
    open("M", "20061215");
    EXPECT_EQ(nameOf(3, 0), "Rossi Bruno");
    EXPECT_EQ(nameOf(1, 5), "venerdì 1 dicembre 2006");
    EXPECT_EQ(nameOf(0, 12), "venerdì 8 dicembre 2006, Immacolata Concezione");
    EXPECT_EQ(nameOf(0, 1), "nessun giorno");
    open("G");
    EXPECT_EQ(nameOf(0, 39), "ore 9:30");
    open("A");
    EXPECT_EQ(nameOf(0, 1), "lunedì");
    EXPECT_EQ(nameOf(0, 7), "domenica");
    EXPECT_EQ(nameOf(0, 8), "lunedì");
}

TEST_F(SentencesTest, TheFixedHolidaysAreNamed) {
    open("M", "20061225");
    EXPECT_EQ(at(2, 29), "Bianchi Rosa, lunedì 25 dicembre 2006, Natale");
}

TEST_F(SentencesTest, ACellOfNoDayNamesTheStaffMemberOnly) {
    open("M");
    EXPECT_EQ(at(3, 1), "Rossi Bruno");
    EXPECT_EQ(at(9, 17), "mercoledì 15 marzo 2006") << "a spare row";
    EXPECT_EQ(at(9, 1), "");
}

TEST_F(SentencesTest, AQuarterOfTheDayNamesItsHourAndTheAppointmentThatCoversIt) {
    open("G");
    EXPECT_EQ(at(1, 39), "Bianchi Rosa, mercoledì 15 marzo 2006, ore 9:30: 1 scadenza dalle 9:30 alle 11:00");
    EXPECT_EQ(at(1, 1), "Bianchi Rosa, mercoledì 15 marzo 2006, ore 0:00");
}

TEST_F(SentencesTest, SeveralRecordsOfOneDayAreNamedTogetherAndThePictureIsTheLast) {
    bench.putRighe(
        {riga("RB", "20060315", {{1, "00002"}}), riga("RB", "20060315", {{8, "00001"}}), RigaPlanner{}});
    open("M");
    EXPECT_EQ(at(3, 17), "Rossi Bruno, mercoledì 15 marzo 2006: 2 scadenze, 1 impegno vario");
    EXPECT_EQ(controlli.Flxm.cella(3, 17).immagine, 9);
}

TEST_F(SentencesTest, AppointmentsThatOverlapAreCountedAndTheirKindsNamed) {
    bench.putRighe({conOrario(riga("RB", "20060315", {{1, "1"}}), "08", "00", "0000100"),
                    conOrario(riga("RB", "20060315", {{2, "1"}}), "08", "15", "0000015"),
                    conOrario(riga("RB", "20060315", {{9, "1"}}), "08", "15", "0000015"), RigaPlanner{}});
    open("G");
    EXPECT_EQ(at(2, 33), "Rossi Bruno, mercoledì 15 marzo 2006, ore 8:00: 1 scadenza dalle 8:00 alle 9:00");
    EXPECT_EQ(at(2, 34),
              "Rossi Bruno, mercoledì 15 marzo 2006, ore 8:15: 3 impegni: 1 scadenza dalle 8:00 alle 9:00; "
              "1 pratica dalle 8:15 alle 8:30; impegno dalle 8:15 alle 8:30");
}

TEST_F(SentencesTest, ANameTellsTheEntriesThatStandBesideIt) {
    bench.putRighe({riga("RB", "20060315", {{7, "1"}}), RigaPlanner{}});
    open("G");
    EXPECT_EQ(nameOf(2, 0), "Rossi Bruno: note riservate");
}

TEST_F(SentencesTest, AGridThatIsNotShownSaysNothing) {
    open("A");
    EXPECT_EQ(fraseCella(controlli, sessione, TipoPlanner::Mensile, {3, 17}), "");
    EXPECT_EQ(fraseCella(controlli, sessione, TipoPlanner::Giornaliero, {30, 90}), "");
    EXPECT_EQ(nomeCasella(controlli, sessione, TipoPlanner::Mensile, {3, 17}), "");
    EXPECT_EQ(nomeCasella(controlli, sessione, TipoPlanner::Mensile, {3, 0}), "");
}

TEST_F(SentencesTest, AYearlyDayNamesItsDateAndTotals) {
    auto mesi = annoPlanner("2006", {{3, 17}});
    mesi[2].testi[16].assign("00010002000300000000000000000004000000000000");
    bench.putAnnuale(mesi);
    open("A");
    EXPECT_EQ(at(3, 17),
              "mercoledì 15 marzo 2006: 1 scadenza, 3 scadenze concluse, 2 pratiche, 4 note riservate");
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
