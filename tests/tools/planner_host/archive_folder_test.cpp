// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host_fixture.h"
#include "planner_host/archive_folder.h"
#include "planner_host/errors.h"

#include <fstream>
#include <gmock/gmock.h>

namespace planner::toolstest {

using testing::HasSubstr;

namespace {

OpzioniHost optionsFor(const std::filesystem::path& folder, bool campione) {
    OpzioniHost opzioni;
    opzioni.archivio = folder;
    opzioni.campione = campione;
    opzioni.opzioniCampione = {.anno = 2006, .collaboratori = 2};
    return opzioni;
}

std::string yearOfArchive(const std::filesystem::path& folder) {
    return test::fileBytes(folder / "wplanner").substr(0, 4);
}

} // namespace

TEST(ArchiveFolder, RemovesOnlyAFolderOfItsOwn) {
    const test::TempFolder parent;
    const ArchiveFolder given(optionsFor(parent.folder(), false));
    std::filesystem::path own;
    {
        OpzioniHost opzioni;
        opzioni.opzioniCampione.collaboratori = 2;
        ArchiveFolder archive(opzioni);
        archive.prepara(2006);
        own = archive.cartella();
        EXPECT_TRUE(std::filesystem::exists(own / "wrighipl"));
    }
    EXPECT_FALSE(std::filesystem::exists(own));
    EXPECT_TRUE(std::filesystem::exists(parent.folder()));
}

TEST(ArchiveFolder, LeavesTheArchivesOfAGivenFolderAlone) {
    const test::TempFolder folder;
    std::ofstream(folder.folder() / "wcollab") << "dell'host";
    ArchiveFolder archive(optionsFor(folder.folder(), false));
    archive.prepara(2007);
    EXPECT_EQ(test::fileBytes(folder.folder() / "wcollab"), "dell'host");
    EXPECT_FALSE(std::filesystem::exists(folder.folder() / "wrighipl"));
}

TEST(ArchiveFolder, NeverOverwritesArchivesThatItDidNotMake) {
    const test::TempFolder folder;
    std::ofstream(folder.folder() / "wcollab") << "dell'host";
    ArchiveFolder archive(optionsFor(folder.folder(), true));
    EXPECT_THROW(archive.prepara(2006), HostError);
    EXPECT_EQ(test::fileBytes(folder.folder() / "wcollab"), "dell'host");
    EXPECT_FALSE(std::filesystem::exists(folder.folder() / "wrighipl"));
}

TEST(ArchiveFolder, ReplacesItsOwnArchivesByThoseOfAnotherYear) {
    const test::TempFolder folder;
    ArchiveFolder(optionsFor(folder.folder() / "nuova", true)).prepara(2006);
    EXPECT_EQ(yearOfArchive(folder.folder() / "nuova"), "2006");
    ArchiveFolder(optionsFor(folder.folder() / "nuova", true)).prepara(2007);
    EXPECT_EQ(yearOfArchive(folder.folder() / "nuova"), "2007");
}

TEST(ArchiveFolder, FindsNamesByCode) {
    const test::TempFolder folder;
    ArchiveFolder archive(optionsFor(folder.folder(), true));
    EXPECT_EQ(archive.cercaNome("RB"), "") << "no staff file yet";
    archive.prepara(2006);
    EXPECT_EQ(archive.cercaNome("RB"), "Rossi Bruno");
    EXPECT_EQ(archive.cercaNome("XX"), "");
}

TEST_F(HostTest, OnlyTheArchiveIsMadeWhenAsked) {
    const std::filesystem::path made = folder() / "prova";
    const RunResult result = host("E", {"--solo-archivio", "--archivio", made.generic_string(), "--anno",
                                        "2006", "--collaboratori", "4", "--righe", "100"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_TRUE(diary().empty());
    EXPECT_EQ(std::filesystem::file_size(made / "wrighipl"), 100u * 89);
    EXPECT_EQ(std::filesystem::file_size(made / "wcollab"), 4u * 125);
    EXPECT_FALSE(std::filesystem::exists(made / "transito.dat"));
}

TEST_F(HostTest, AForeignArchiveIsRefusedWithAReason) {
    std::ofstream(folder() / "wgrafici") << "dell'host";
    const RunResult result = host("E", {"--solo-archivio", "--archivio", folder().generic_string()});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, HasSubstr("wgrafici: è di un archivio che planner-host non ha fatto"));
}

} // namespace planner::toolstest
