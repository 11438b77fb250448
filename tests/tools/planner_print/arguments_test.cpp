// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "print_fixture.h"

namespace planner::test {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct PrintArguments : PrintFixture {
    static void expectUsageError(const std::vector<std::string>& arguments, const std::string& part) {
        const toolstest::RunResult result = print(arguments);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_THAT(result.errors, HasSubstr(part));
        EXPECT_THAT(result.errors, HasSubstr("Uso: planner-print"));
    }
};

} // namespace

TEST_F(PrintArguments, HelpIsPrintedInItalian) {
    const toolstest::RunResult result = print({"--help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, StartsWith("Uso: planner-print TRANSITO --pdf FILE | --png FILE"));
    EXPECT_THAT(result.output, HasSubstr("FILE-1.png, FILE-2.png"));
    EXPECT_EQ(result.errors, "");
}

TEST_F(PrintArguments, WrongOnesAreExplained) {
    expectUsageError({}, "manca il file di transito");
    expectUsageError({"a"}, "manca il file da scrivere");
    expectUsageError({"--pdf", "b"}, "manca il file di transito");
    expectUsageError({"a", "--pdf"}, "dopo --pdf manca il nome");
    expectUsageError({"a", "--png"}, "dopo --png manca il nome");
    expectUsageError({"a", "--png", ""}, "il nome del file da scrivere è vuoto");
    expectUsageError({"a", "--png", "b", "--pdf", "c"}, "di troppo: \"c\"");
    expectUsageError({"a", "b", "--pdf", "c"}, "di troppo: \"b\"");
    expectUsageError({"a", "--pdf", "b", "--oggi"}, "dopo --oggi manca la data");
    expectUsageError({"a", "--pdf", "b", "--oggi", "20060230"}, "\"20060230\" non è una data");
    expectUsageError({"a", "--pdf", "b", "--a2"}, "opzione sconosciuta: \"--a2\"");
}

TEST_F(PrintArguments, AMissingTransitFileIsAnError) {
    const toolstest::RunResult result = print({path("manca"), "--pdf", path("a.pdf")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors,
              "planner-print: il file di transito \"" + path("manca") + "\" manca o non si può leggere\n");
    EXPECT_FALSE(folder.exists("a.pdf"));
}

TEST_F(PrintArguments, AFileThatCannotBeWrittenIsAnError) {
    for (const std::string option : {"--pdf", "--png"}) {
        const toolstest::RunResult result = print({path("transito"), option, path("manca/a")});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.errors,
                    StartsWith("planner-print: il file \"" + path("manca/a") + "\" non è stato scritto: "));
    }
}

TEST_F(PrintArguments, ARequestWithoutAGridPrintsNothing) {
    writeRequest("X");
    const toolstest::RunResult result = print({path("transito"), "--pdf", path("a.pdf")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("Richiesta non valida: il tipo di planner \"X\" non è M, G o A."));
    EXPECT_THAT(result.errors,
                HasSubstr("planner-print: la richiesta non mostra alcun planner da stampare\n"));
    EXPECT_FALSE(folder.exists("a.pdf"));
}

TEST_F(PrintArguments, ThePlannersMessagesGoToStandardErrorAndTheRestIsPrinted) {
    std::filesystem::remove(path("wrighipl"));
    const toolstest::RunResult result = print({path("transito"), "--pdf", path("a.pdf")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "planner-print: Errore su File :" + path() + "/\\wrighipl\n");
    EXPECT_THAT(folder.read("a.pdf"), StartsWith("%PDF"));
}

} // namespace planner::test
