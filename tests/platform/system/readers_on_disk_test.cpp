// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "archive/readers.h"
#include "platform/system/system_file_system.h"
#include "ports/runtime_errors.h"
#include "support/builders.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace planner::test {
namespace {

/// One of the open tables: its file, and how it is read and counted.
struct OpenTable {
    const char* name;
    std::size_t recordLength;
    void (*read)(const FileSystem&, const std::string&, Archivi&);
    std::int16_t Archivi::*upperBound;
};

void PrintTo(const OpenTable& table, std::ostream* out) {
    *out << table.name;
}

class OpenTableTest : public testing::TestWithParam<OpenTable> {
protected:
    void read() { GetParam().read(files, folder.path() + "\\" + GetParam().name, archivi); }
    void readRecords(std::uint64_t count) {
        folder.writeSparse(GetParam().name, count * GetParam().recordLength);
        read();
    }
    std::int16_t upperBound() const { return archivi.*GetParam().upperBound; }

    TempFolder folder;
    SystemFileSystem files;
    Archivi archivi;
};

INSTANTIATE_TEST_SUITE_P(Files, OpenTableTest,
                         testing::Values(OpenTable{"wrighipl", 89, readRighePlanner, &Archivi::NumRighe},
                                         OpenTable{"wcollab", 125, readCollaboratori, &Archivi::NumCollab},
                                         OpenTable{"wgrafici", 47, readRigheGrafici, &Archivi::NumGrafici}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(OpenTableTest, IsReadFromTheDisk) {
    folder.write(GetParam().name, std::string(2 * GetParam().recordLength, 'x'));
    read();
    EXPECT_EQ(upperBound(), 2);
}

TEST_P(OpenTableTest, AMissingFileIsAnError) {
    EXPECT_THROW(read(), FileError);
    EXPECT_EQ(upperBound(), 0);
}

TEST_P(OpenTableTest, AMissingFolderIsAnError) {
    EXPECT_THROW(GetParam().read(files, folder.path("none") + "\\" + GetParam().name, archivi), FileError);
}

TEST_P(OpenTableTest, AnEmptyFileIsAnErrorAndLeavesNoRecords) {
    EXPECT_THROW(readRecords(0), FileError);
    EXPECT_EQ(upperBound(), 0);
}

TEST_P(OpenTableTest, AShortFileIsReadAsFarAsItGoes) {
    folder.write(GetParam().name, std::string(GetParam().recordLength / 2 + 1, 'x'));
    read();
    EXPECT_EQ(upperBound(), 1);
}

TEST_P(OpenTableTest, AnOddLengthIsRounded) {
    folder.write(GetParam().name, std::string(3 * GetParam().recordLength + 1, 'x'));
    read();
    EXPECT_EQ(upperBound(), 3);
}

TEST_P(OpenTableTest, AFolderInItsPlaceIsAnError) {
    folder.makeFolder(GetParam().name);
    EXPECT_THROW(read(), FileError);
}

TEST_P(OpenTableTest, OneRecord) {
    readRecords(1);
    EXPECT_EQ(upperBound(), 1);
}

TEST_P(OpenTableTest, OneRecordLessThanSixteenBitsCount) {
    readRecords(32766);
    EXPECT_EQ(upperBound(), 32766);
}

TEST_P(OpenTableTest, AsManyRecordsAsSixteenBitsCount) {
    readRecords(32767);
    EXPECT_EQ(upperBound(), 32767);
}

TEST_P(OpenTableTest, OneRecordMoreThanSixteenBitsCountIsAnError) {
    readRecords(1);
    EXPECT_THROW(readRecords(32768), OverflowError);
    EXPECT_EQ(upperBound(), 1);
}

TEST_P(OpenTableTest, AFileOfFiveGigabytesIsAnErrorAndNotRead) {
    folder.writeSparse(GetParam().name, 5'000'000'000);
    EXPECT_THROW(read(), OverflowError);
    EXPECT_EQ(upperBound(), 0);
}

class YearOnDiskTest : public testing::Test {
protected:
    void read() { readPlannerAnnuale(files, folder.path() + "\\wplanner", archivi); }

    TempFolder folder;
    SystemFileSystem files;
    Archivi archivi;
};

TEST_F(YearOnDiskTest, IsReadFromTheDisk) {
    folder.write("wplanner", bytesOf(annoPlanner("2006", {{12, 42}})));
    read();
    EXPECT_EQ(archivi.PlannerAnnuale[0].anno.view(), "2006");
    EXPECT_EQ(archivi.PlannerAnnuale[11].segni[41].view(), "*");
}

TEST_F(YearOnDiskTest, ShortFilesLeaveBlankMonths) {
    folder.write("wplanner", "2006");
    read();
    EXPECT_EQ(archivi.PlannerAnnuale[0].anno.view(), "2006");
    EXPECT_EQ(bytesOf(archivi.PlannerAnnuale[11]), std::string(1900, ' '));
}

TEST_F(YearOnDiskTest, MissingEmptyAndFolderAreErrors) {
    EXPECT_THROW(read(), FileError);
    folder.write("wplanner", "");
    EXPECT_THROW(read(), FileError);
    std::filesystem::remove(folder.path("wplanner"));
    folder.makeFolder("wplanner");
    EXPECT_THROW(read(), FileError);
}

TEST_F(YearOnDiskTest, AFileOfFiveGigabytesIsReadAsFarAsTheTwelveMonths) {
    folder.writeSparse("wplanner", 5'000'000'000);
    read();
    EXPECT_EQ(bytesOf(archivi.PlannerAnnuale[11]), std::string(1900, '\0'));
}

} // namespace
} // namespace planner::test
