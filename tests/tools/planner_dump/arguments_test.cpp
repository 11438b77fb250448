// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/system_clock.h"
#include "session/dates.h"
#include "small_office.h"

#include <gtest/gtest.h>

namespace planner::test {

namespace {

bool contains(const std::string& text, std::string_view part) {
    return text.find(part) != std::string::npos;
}

void expectUsageError(const std::vector<std::string>& arguments, std::string_view part) {
    const DumpRun run = runDump(arguments);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(contains(run.err, part)) << run.err;
    EXPECT_TRUE(contains(run.err, "Uso: planner-dump")) << run.err;
}

} // namespace

TEST(DumpArguments, HelpIsPrintedInItalian) {
    const DumpRun run = runDump({"--help"});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(contains(run.out, "Uso: planner-dump TRANSITO")) << run.out;
    EXPECT_EQ(run.err, "");
    EXPECT_TRUE(contains(run.out, "--grafico N")) << run.out;
}

TEST(DumpArguments, WrongOnesAreExplained) {
    expectUsageError({}, "manca il file di transito");
    expectUsageError({""}, "manca il file di transito");
    expectUsageError({"a", "b"}, "di troppo: \"b\"");
    expectUsageError({"a", "--oggi"}, "dopo --oggi manca la data");
    expectUsageError({"a", "--oggi", "20060230"}, "\"20060230\" non è una data");
    expectUsageError({"a", "--altro"}, "opzione sconosciuta: \"--altro\"");
    expectUsageError({"a", "--\xE8"}, "opzione sconosciuta: \"--\uFFFD\"");
}

TEST(DumpArguments, TheChartsStaffIndexIsAWholeNumberOfSixteenBits) {
    expectUsageError({"a", "--grafico"}, "dopo --grafico manca l'indice");
    for (const std::string index : {"", "x", "1x", "1.5", " 1", "+1", "--oggi", "32768", "-32769", "1e3"}) {
        expectUsageError({"a", "--grafico", index}, "\"" + index + "\" non è un indice");
    }
}

TEST(DumpArguments, MissingTransitFileIsAnError) {
    const SmallOffice office;
    const DumpRun run = runDump({office.transitPath()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "planner-dump: il file di transito \"" + office.transitPath() +
                           "\" manca o non si può leggere\n");
}

TEST(DumpArguments, FolderForATransitFileIsAnError) {
    const SmallOffice office;
    EXPECT_EQ(runDump({office.folder()}).exitCode, 1);
}

TEST(DumpArguments, BackslashesAndDoubledSeparatorsReachTheSameFile) {
    const SmallOffice office;
    office.write();
    std::string path = office.transitPath();
    path.replace(path.find_last_of("/\\"), 1, "\\\\");
    const DumpRun run = runDump({path, "--oggi", "20251120"});
    ASSERT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.json().at("richiesta").at("riservato1"), "HOST0001");
}

TEST(DumpArguments, TodayIsTheSystemsUnlessGiven) {
    SmallOffice office;
    office.writeFile("transito", "");
    const std::string before = formatDate(SystemClock().today());
    std::string shown = runDump({office.transitPath()}).json().at("calendario");
    const std::string after = formatDate(SystemClock().today());
    std::erase(shown, '-');
    EXPECT_TRUE(shown == before || shown == after) << shown;
}

} // namespace planner::test
