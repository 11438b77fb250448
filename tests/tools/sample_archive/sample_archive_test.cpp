// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ports/runtime_errors.h"
#include "sample_archive/sample_archive.h"
#include "support/temp_folder.h"

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <set>
#include <stdexcept>

namespace planner::toolstest {

namespace {

constexpr std::array<const char*, 4> Files{"wrighipl", "wplanner", "wcollab", "wgrafici"};

std::array<std::string, 4> writtenBytes(const OpzioniCampione& opzioni) {
    const test::TempFolder folder;
    scriviArchivioCampione(creaArchivioCampione(opzioni), folder.folder());
    std::array<std::string, 4> bytes;
    for (std::size_t i = 0; i < Files.size(); ++i) {
        bytes[i] = test::fileBytes(folder.folder() / Files[i]);
    }
    return bytes;
}

std::uint64_t checksum(const std::string& bytes) {
    std::uint64_t sum = 0xCBF29CE484222325u;
    for (const char byte : bytes) {
        sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3u;
    }
    return sum;
}

} // namespace

TEST(SampleArchive, FilesAreWholeRecordsAndNothingElse) {
    const OpzioniCampione opzioni{.anno = 2006, .collaboratori = 7, .righe = 500, .seme = 3};
    const ArchivioCampione archivio = creaArchivioCampione(opzioni);
    const auto bytes = writtenBytes(opzioni);
    EXPECT_EQ(bytes[0].size(), 500u * 89);
    EXPECT_EQ(bytes[1].size(), 12u * 1900);
    EXPECT_EQ(bytes[2].size(), 7u * 125);
    EXPECT_EQ(bytes[3].size(), archivio.grafici.size() * 47);
    EXPECT_FALSE(archivio.grafici.empty());
}

TEST(SampleArchive, EqualOptionsGiveEqualBytes) {
    const OpzioniCampione opzioni{.anno = 2006, .seme = 42};
    EXPECT_EQ(writtenBytes(opzioni), writtenBytes(opzioni));
}

TEST(SampleArchive, TheBytesAreTheSameOnEveryMachine) {
    const auto bytes = writtenBytes({.anno = 2006});
    EXPECT_EQ(checksum(bytes[0]), 0xDB5B1C6932F226E9u);
    EXPECT_EQ(checksum(bytes[1]), 0x5C52FCB925B4E419u);
    EXPECT_EQ(checksum(bytes[2]), 0xE4B1A2325971BE67u);
    EXPECT_EQ(checksum(bytes[3]), 0xFC75A0C836D7BE09u);
}

TEST(SampleArchive, YearAndSeedMakeADifference) {
    const auto bytes = writtenBytes({.anno = 2006, .seme = 1});
    const auto otherYear = writtenBytes({.anno = 2007, .seme = 1});
    const auto otherSeed = writtenBytes({.anno = 2006, .seme = 2});
    EXPECT_NE(bytes[0], otherYear[0]);
    EXPECT_NE(bytes[1], otherYear[1]);
    EXPECT_NE(bytes[3], otherYear[3]);
    EXPECT_NE(bytes[0], otherSeed[0]);
    EXPECT_EQ(bytes[2], otherSeed[2]);
}

TEST(SampleArchive, StaffHaveDifferentCodesAndNames) {
    std::set<std::string> codes;
    std::set<std::string> names;
    for (const Collaboratore& collaboratore : creaArchivioCampione({.collaboratori = 1000}).collaboratori) {
        codes.insert(collaboratore.codice.text());
        names.insert(collaboratore.nome.text());
        EXPECT_FALSE(collaboratore.mansione.trimmed().empty());
        EXPECT_EQ(collaboratore.codice.trimmed().size(), 2u);
    }
    EXPECT_EQ(codes.size(), 1000u);
    EXPECT_EQ(names.size(), 1000u);
}

TEST(SampleArchive, NamesAreWindows1252) {
    const auto archivio = creaArchivioCampione({});
    std::string names;
    for (const Collaboratore& collaboratore : archivio.collaboratori) {
        names += collaboratore.nome.text() + collaboratore.mansione.text();
    }
    EXPECT_NE(names.find("Nicol\xF2 "), std::string::npos);
    EXPECT_NE(names.find("Dell\x92Orto"), std::string::npos);
    EXPECT_EQ(names.find('\xC3'), std::string::npos) << "a UTF-8 byte";
    EXPECT_EQ(archivio.collaboratori.front().codice.view(), "RB");
    EXPECT_EQ(archivio.collaboratori.front().nome.trimmedRight(), "Rossi Bruno");
}

TEST(SampleArchive, LargeOfficesStayWithin16BitCounts) {
    const auto archivio = creaArchivioCampione({.collaboratori = 500, .righe = RigheMassime});
    EXPECT_EQ(archivio.righe.size(), 32'767u);
    EXPECT_LE(archivio.grafici.size(), 32'767u);
    EXPECT_GT(archivio.grafici.size(), 20'000u);
}

TEST(SampleArchive, OptionsOutsideTheirRangeAreRefused) {
    const std::array wrong{OpzioniCampione{.anno = 1752},       OpzioniCampione{.anno = 10'000},
                           OpzioniCampione{.collaboratori = 0}, OpzioniCampione{.collaboratori = 1001},
                           OpzioniCampione{.righe = -1},        OpzioniCampione{.righe = 32'768}};
    for (const OpzioniCampione& opzioni : wrong) {
        EXPECT_THROW(creaArchivioCampione(opzioni), std::invalid_argument);
    }
}

TEST(SampleArchive, AMissingFolderIsAFileError) {
    const test::TempFolder folder;
    EXPECT_THROW(scriviArchivioCampione(creaArchivioCampione({}), folder.folder() / "nessuna"), FileError);
}

} // namespace planner::toolstest
