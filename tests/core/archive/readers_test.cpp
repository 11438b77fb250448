// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/readers.h"
#include "ports/runtime_errors.h"
#include "support/builders.h"
#include "support/memory_file_system.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

class ReadersTest : public testing::Test {
protected:
    /// The upper bound that a file of this many bytes gives the appointment table.
    std::int16_t boundFor(std::size_t length) {
        files.put("d/wrighipl", std::string(length, 'x'));
        readRighePlanner(files, "d\\wrighipl", archivi);
        EXPECT_EQ(archivi.RighePlanner.size(), static_cast<std::size_t>(archivi.NumRighe) + 1);
        return archivi.NumRighe;
    }

    Journal journal;
    MemoryFileSystem files{journal};
    Archivi archivi;
};

TEST_F(ReadersTest, TheFilesHaveTheirNamesWithoutExtension) {
    EXPECT_EQ(FileRighe, "\\wrighipl");
    EXPECT_EQ(FileAnnuale, "\\wplanner");
    EXPECT_EQ(FileCollaboratori, "\\wcollab");
    EXPECT_EQ(FileGrafici, "\\wgrafici");
}

TEST_F(ReadersTest, TheTableHasOneBlankElementBeyondAWholeNumberOfRecords) {
    const std::vector<RigaPlanner> righe{riga("RB", "20060315"), riga("7 ", "20060316")};
    files.put("d/wrighipl", bytesOf(righe));
    readRighePlanner(files, "d/wrighipl", archivi);
    ASSERT_EQ(archivi.NumRighe, 2);
    ASSERT_EQ(archivi.RighePlanner.size(), 3u);
    EXPECT_EQ(bytesOf(archivi.RighePlanner[0]), bytesOf(righe[0]));
    EXPECT_EQ(bytesOf(archivi.RighePlanner[1]), bytesOf(righe[1]));
    EXPECT_EQ(bytesOf(archivi.RighePlanner[2]), std::string(89, ' '));
}

TEST_F(ReadersTest, EachOpenTableHasItsOwnRecordLength) {
    files.put("d/wrighipl", std::string(3 * 89, 'a'));
    files.put("d/wcollab", std::string(2 * 125, 'b'));
    files.put("d/wgrafici", std::string(4 * 47, 'c'));
    readRighePlanner(files, "d/wrighipl", archivi);
    readCollaboratori(files, "d/wcollab", archivi);
    readRigheGrafici(files, "d/wgrafici", archivi);
    EXPECT_EQ(archivi.NumRighe, 3);
    EXPECT_EQ(archivi.NumCollab, 2);
    EXPECT_EQ(archivi.NumGrafici, 4);
    EXPECT_EQ(bytesOf(archivi.Collaboratori[1]), std::string(125, 'b'));
    EXPECT_EQ(bytesOf(archivi.Collaboratori[2]), std::string(125, ' '));
    EXPECT_EQ(bytesOf(archivi.RigheGrafici[3]), std::string(47, 'c'));
    EXPECT_EQ(bytesOf(archivi.RigheGrafici[4]), std::string(47, ' '));
}

TEST_F(ReadersTest, ALengthThatIsNoMultipleOfTheRecordGivesTheRoundedQuotient) {
    EXPECT_EQ(boundFor(1), 0);
    EXPECT_EQ(boundFor(44), 0);
    EXPECT_EQ(boundFor(45), 1);
    EXPECT_EQ(boundFor(89), 1);
    EXPECT_EQ(boundFor(89 + 44), 1);
    EXPECT_EQ(boundFor(89 + 45), 2);
}

TEST_F(ReadersTest, TheQuotientsNearestToAHalfRoundAsTheyMust) {
    const auto boundOfGrafici = [&](std::size_t length) {
        files.put("d/wgrafici", std::string(length, 'x'));
        readRigheGrafici(files, "d/wgrafici", archivi);
        return archivi.NumGrafici;
    };
    EXPECT_EQ(boundOfGrafici(47 + 23), 1);
    EXPECT_EQ(boundOfGrafici(47 + 24), 2);
    EXPECT_EQ(boundOfGrafici(2 * 47 + 23), 2);
    EXPECT_EQ(boundOfGrafici(2 * 47 + 24), 3);
}

TEST_F(ReadersTest, APartialLastRecordIsReadAsFarAsItGoes) {
    files.put("d/wrighipl", bytesOf(riga("RB", "20060315")) + "7 2006031699");
    readRighePlanner(files, "d/wrighipl", archivi);
    ASSERT_EQ(archivi.NumRighe, 1);
    EXPECT_EQ(bytesOf(archivi.RighePlanner[1]), "7 2006031699" + std::string(89 - 12, ' '));

    files.put("d/wrighipl", std::string(89, 'a') + std::string(80, 'b'));
    readRighePlanner(files, "d/wrighipl", archivi);
    ASSERT_EQ(archivi.NumRighe, 2);
    EXPECT_EQ(bytesOf(archivi.RighePlanner[1]), std::string(80, 'b') + std::string(9, ' '));
    EXPECT_EQ(bytesOf(archivi.RighePlanner[2]), std::string(89, ' '));
}

TEST_F(ReadersTest, EveryTruncationOfThreeRecordsKeepsTheWholeOnes) {
    const std::string bytes = bytesOf(std::vector<RigaPlanner>(3, riga("RB", "20060315")));
    for (std::size_t length = 1; length <= bytes.size(); ++length) {
        files.put("d/wrighipl", bytes.substr(0, length));
        readRighePlanner(files, "d/wrighipl", archivi);
        EXPECT_EQ(bytesOf(archivi.RighePlanner).substr(0, length), bytes.substr(0, length));
        const std::string rest = bytesOf(archivi.RighePlanner).substr(length);
        EXPECT_EQ(rest.find_first_not_of(' '), std::string::npos) << length;
    }
}

TEST_F(ReadersTest, AnEmptyFileLeavesOneBlankElementAndIsAnError) {
    archivi.RighePlanner.assign(5, riga("RB", "20060315"));
    archivi.NumRighe = 4;
    files.put("d/wrighipl", "");
    EXPECT_THROW(readRighePlanner(files, "d/wrighipl", archivi), FileError);
    EXPECT_EQ(archivi.NumRighe, 0);
    ASSERT_EQ(archivi.RighePlanner.size(), 1u);
    EXPECT_EQ(bytesOf(archivi.RighePlanner[0]), std::string(89, ' '));
}

TEST_F(ReadersTest, AMissingFileLeavesAnOpenTableAsItWas) {
    archivi.Collaboratori = {collaboratore("RB", "Rossi"), Collaboratore{}};
    archivi.NumCollab = 1;
    EXPECT_THROW(readCollaboratori(files, "d/wcollab", archivi), FileError);
    EXPECT_EQ(archivi.NumCollab, 1);
    EXPECT_EQ(archivi.Collaboratori.at(0).nome.trimmedRight(), "Rossi");
}

TEST_F(ReadersTest, TheYearHasTwelveMonthsWithJanuaryFirst) {
    auto mesi = annoPlanner("2006", {{1, 3}, {12, 42}});
    files.put("d/wplanner", bytesOf(mesi));
    readPlannerAnnuale(files, "d/wplanner", archivi);
    for (std::size_t month = 0; month < 12; ++month) {
        EXPECT_EQ(bytesOf(archivi.PlannerAnnuale.at(month)), bytesOf(mesi[month])) << month;
    }
}

TEST_F(ReadersTest, AShorterYearLeavesTheMissingMonthsBlank) {
    files.put("d/wplanner", std::string(2 * 1900 + 10, 'x'));
    readPlannerAnnuale(files, "d/wplanner", archivi);
    EXPECT_EQ(bytesOf(archivi.PlannerAnnuale[1]), std::string(1900, 'x'));
    EXPECT_EQ(bytesOf(archivi.PlannerAnnuale[2]), std::string(10, 'x') + std::string(1890, ' '));
    EXPECT_EQ(bytesOf(archivi.PlannerAnnuale[3]), std::string(1900, ' '));
}

TEST_F(ReadersTest, ALongerYearIsReadAsFarAsTheTwelveMonths) {
    files.put("d/wplanner", std::string(12 * 1900, 'x') + "more");
    readPlannerAnnuale(files, "d/wplanner", archivi);
    EXPECT_EQ(bytesOf(archivi.PlannerAnnuale[11]), std::string(1900, 'x'));
}

TEST_F(ReadersTest, AMissingOrEmptyYearLeavesBlankMonths) {
    archivi.PlannerAnnuale.fill(recordOf<MesePlanner>(std::string(1900, 'x')));
    EXPECT_THROW(readPlannerAnnuale(files, "d/wplanner", archivi), FileError);
    EXPECT_EQ(bytesOf(archivi.PlannerAnnuale[0]), std::string(1900, ' '));

    archivi.PlannerAnnuale.fill(recordOf<MesePlanner>(std::string(1900, 'x')));
    files.put("d/wplanner", "");
    EXPECT_THROW(readPlannerAnnuale(files, "d/wplanner", archivi), FileError);
    EXPECT_EQ(bytesOf(archivi.PlannerAnnuale[11]), std::string(1900, ' '));
}

TEST_F(ReadersTest, TablesAreOneBlankElementBeforeAnyReading) {
    EXPECT_EQ(bytesOf(archivi.RighePlanner), std::string(89, ' '));
    EXPECT_EQ(bytesOf(archivi.Collaboratori), std::string(125, ' '));
    EXPECT_EQ(bytesOf(archivi.RigheGrafici), std::string(47, ' '));
    EXPECT_EQ(archivi.NumRighe, 0);
    EXPECT_EQ(archivi.NumCollab, 0);
    EXPECT_EQ(archivi.NumGrafici, 0);
}

} // namespace
} // namespace planner::test
