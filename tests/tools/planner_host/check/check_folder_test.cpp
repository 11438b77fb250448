// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "planner_host/check/check_folder.h"
#include "platform/system/system_file_system.h"
#include "support/builders.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

namespace planner::toolstest {
namespace {

using namespace planner::test;
using testing::HasSubstr;

/// A sound folder of March 2006, to be spoilt.
class CheckFolderTest : public testing::Test {
protected:
    void SetUp() override {
        folder.write("trans.dat", bytesOf(richiesta()));
        folder.write("wcollab", bytesOf(std::vector{collaboratore("BI", "Bianchi Rosa"),
                                                    collaboratore("RB", "Rossi Bruno")}));
        folder.write("wrighipl", bytesOf(std::vector{riga("BI", "20060315", {{1, "2"}}), RigaPlanner{}}));
        folder.write("wplanner", bytesOf(annoPlanner("2006", {{3, 17}})));
        folder.write("wgrafici", bytesOf(std::vector{rigaGrafico("RB", "20060315", "0000730")}));
    }
    std::string said() const {
        return controllaCartella(SystemFileSystem(), folder.folder(), "trans.dat", *makeDate(2006, 3, 15))
            .testo();
    }
    /// Other bytes from a place in a file on.
    void spoil(const std::string& file, std::size_t at, const std::string& bytes) {
        folder.write(file, folder.read(file).replace(at, bytes.size(), bytes));
    }

    TempFolder folder;
};

TEST_F(CheckFolderTest, NothingIsSaidOfASoundFolder) {
    EXPECT_EQ(said(), "");
}

TEST_F(CheckFolderTest, NothingIsWritten) {
    std::filesystem::remove(folder.folder() / "trans.dat");
    EXPECT_THAT(said(), HasSubstr("trans.dat: non si può leggere"));
    EXPECT_FALSE(folder.exists("trans.dat"));
}

TEST_F(CheckFolderTest, MissingAndEmptyFilesAreNamed) {
    std::filesystem::remove(folder.folder() / "wgrafici");
    folder.write("wrighipl", "");
    EXPECT_THAT(said(), HasSubstr("wgrafici: non si può leggere"));
    EXPECT_THAT(said(), HasSubstr("wrighipl: è vuoto\n"));
}

TEST_F(CheckFolderTest, ALengthThatIsNoMultipleOfTheRecordsNamesTheRest) {
    folder.write("wcollab", folder.read("wcollab") + "xyz");
    EXPECT_EQ(said(), "wcollab, record 3, byte 250: è di 3 byte invece di 125\n");
}

TEST_F(CheckFolderTest, MoreRecordsThanThePlannerCountsAreSaid) {
    folder.write("wrighipl", std::string(sizeof(RigaPlanner) * 32768, ' '));
    EXPECT_EQ(said(), "wrighipl: ha 32768 record: il planner ne legge al più 32767\n");
}

TEST_F(CheckFolderTest, ATransitFileOfAnotherLengthIsSaid) {
    folder.write("trans.dat", bytesOf(richiesta()).substr(0, 100));
    EXPECT_EQ(said(), "trans.dat: è di 100 byte invece di 121\n");
}

TEST_F(CheckFolderTest, AnUnknownKindIsSaid) {
    spoil("trans.dat", 8, "X");
    EXPECT_EQ(said(), "trans.dat, record 1, byte 8: tipoplanner \"X\" non è \"M\", \"G\" o \"A\"\n");
}

TEST_F(CheckFolderTest, ImpossibleDatesOfTheRequestAreSaid) {
    spoil("trans.dat", 9, "20060231");
    EXPECT_EQ(said(), "trans.dat: Richiesta non valida: la data iniziale \"20060231\" non è una data.\n");
}

TEST_F(CheckFolderTest, ADayOutsideThePeriodIsSaid) {
    spoil("trans.dat", 88, "20070101");
    EXPECT_EQ(said(), "trans.dat: il giorno da mostrare è fuori dal periodo\n");
}

TEST_F(CheckFolderTest, CodesOfNobodyAreWrongInTheRequestAndNotedInTheLines) {
    spoil("trans.dat", 86, "ZZ");
    spoil("wrighipl", 0, "QQ");
    EXPECT_EQ(
        said(),
        "trans.dat, record 1, byte 86: collab \"ZZ\" non è il codice di nessun collaboratore\n"
        "wrighipl: il codice \"QQ\" non è di nessun collaboratore: 1 record stanno in *NON ASSEGNATE*\n");
}

TEST_F(CheckFolderTest, StaffWithoutCodeOrNameAndCodesThatComeTwiceAreSaid) {
    folder.write("wcollab",
                 bytesOf(std::vector{collaboratore("BI", "Bianchi Rosa"), collaboratore("BI", ""),
                                     collaboratore("", "Verdi Ugo"), collaboratore("RB", "Rossi")}));
    EXPECT_EQ(said(), "wcollab, record 2, byte 125: codice \"BI\" c'è già: vale il primo\n"
                      "wcollab, record 2, byte 127: nome è vuoto\n"
                      "wcollab, record 3, byte 250: codice è vuoto\n");
}

TEST_F(CheckFolderTest, ImpossibleDaysOfLinesAreSaid) {
    spoil("wrighipl", 2, "20060230");
    EXPECT_THAT(said(), HasSubstr("wrighipl, record 1, byte 2: la data "));
}

TEST_F(CheckFolderTest, CountersThatAreNoNumbersOrTooGreatAreSaid) {
    spoil("wrighipl", 24, "  3x 99999");
    EXPECT_EQ(
        said(),
        "wrighipl, record 1, byte 24: contatore1 \"  3x \" non è un numero: ne vale la parte che lo è, o "
        "zero\n"
        "wrighipl, record 1, byte 29: contatore2 \"99999\" è troppo grande: il planner conta fino a 32767\n");
}

TEST_F(CheckFolderTest, HoursWithTooManyMinutesAreSaid) {
    spoil("wgrafici", 10, "0000760");
    EXPECT_EQ(
        said(),
        "wgrafici, record 1, byte 10: ore1 \"0000760\": i minuti, le ultime due cifre, sono più di 59\n");
}

TEST_F(CheckFolderTest, HoursMayBePartedFromMinutesAsPeopleWriteThem) {
    spoil("wgrafici", 10, "0004:30");
    EXPECT_EQ(said(), "");
}

TEST_F(CheckFolderTest, AYearThatIsNotTheRequestsAndMonthsOutOfOrderAreSaid) {
    spoil("wplanner", 0, "2005");
    spoil("wplanner", 1900 + 4, "07");
    EXPECT_EQ(said(), "wplanner, record 1, byte 0: anno \"2005\" non è quello della richiesta, 2006\n"
                      "wplanner, record 2, byte 1904: mese \"07\" invece di 02\n");
}

TEST_F(CheckFolderTest, MarksThatMarkNothingAreSaid) {
    spoil("wplanner", 8, "x");
    EXPECT_EQ(
        said(),
        "wplanner, record 1, byte 8: segni contiene segni diversi da \"*\" e spazio: non segnano nulla\n");
}

TEST_F(CheckFolderTest, OfOneFileTheFirstTwentyAreSaidAndTheOthersCounted) {
    folder.write("wcollab", bytesOf(std::vector<Collaboratore>(30, collaboratore("", "Rossi"))));
    EXPECT_THAT(said(), HasSubstr("wcollab, record 20, byte 2375: codice è vuoto\n"));
    EXPECT_THAT(said(), HasSubstr("wcollab: e altri 10\n"));
}

} // namespace
} // namespace planner::toolstest
