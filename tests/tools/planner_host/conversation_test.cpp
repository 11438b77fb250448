// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host_fixture.h"
#include "platform/system/paths.h"

#include <gmock/gmock.h>

namespace planner::toolstest {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

class HostConversation : public HostModeTest {};

} // namespace

TEST_P(HostConversation, EndsWithTheFirstAnswerE) {
    const RunResult result = hostInMode("E");
    EXPECT_TRUE(result.inTime);
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("risposta: 20060315  E  giorno 15/03/2006, nessun collaboratore, "
                                         "E = chiusura del planner\n"));
    EXPECT_THAT(diary(), ElementsAre("M|20060101|20061231|20060315   |  |||"
                                     " Studio di prova|2006"));
}

TEST_P(HostConversation, AsksAgainAfterAConsultation) {
    const RunResult result = hostInMode("DE", {"--tipo", "G", "--collab", "BL"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output,
                HasSubstr("risposta: 20060315RBD  giorno 15/03/2006, collaboratore RB (Rossi Bruno), "
                          "D = consultazione del giorno\n"));
    const std::string request = "G|20060101|20061231|20060315   |BL||| Studio di prova|2006";
    EXPECT_THAT(diary(), ElementsAre(request, request));
}

TEST_P(HostConversation, AsksAgainAfterTheFilters) {
    const RunResult result = hostInMode("FE");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("applica i filtri"));
    EXPECT_EQ(diary().size(), 2u);
}

TEST_P(HostConversation, PreparesThePreviousAndTheNextYear) {
    const RunResult result = hostInMode("PSSE", {"--tipo", "A", "--giorno", "20060605"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(diary(), ElementsAre("A|20060101|20061231|20060605   |  |||NStudio di prova|2006",
                                     "A|20050101|20051231|20050605   |  |||NStudio di prova|2005",
                                     "A|20060101|20061231|20060605   |  |||NStudio di prova|2006",
                                     "A|20070101|20071231|20070605   |  |||NStudio di prova|2007"));
}

TEST_P(HostConversation, GoesOnAfterEveryOtherLetter) {
    const RunResult result = hostInMode("ACDIT E");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(diary().size(), 7u);
}

TEST_P(HostConversation, KeepsTheReservedFields) {
    const RunResult result =
        hostInMode("DE", {"--riservato1", "pratica1", "--riservato2", "perché no", "--mostra-byte"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const std::string request =
        "M|20060101|20061231|20060315   |  |pratica1|perch\xE9 no| Studio di prova|2006";
    EXPECT_THAT(diary(), ElementsAre(request, request));
    EXPECT_THAT(result.output, HasSubstr("  riservato2     25  60  \"perché no"));
    EXPECT_THAT(result.output, Not(HasSubstr("attenzione")));
}

TEST_P(HostConversation, StopsAtTheLimitOfAnswers) {
    const RunResult result = hostInMode("DDDDD", {"--risposte", "2"});
    EXPECT_TRUE(result.inTime);
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(diary().size(), 2u);
    EXPECT_THAT(result.output, HasSubstr("limite di risposte raggiunto"));
}

TEST_P(HostConversation, ShowsTheThreeKindsInTurn) {
    const RunResult result = hostInMode("E", {"--giro"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(diary(), ElementsAre("M|20060101|20061231|20060315   |  ||| Studio di prova|2006",
                                     "G|20060101|20061231|20060315   |  ||| Studio di prova|2006",
                                     "A|20060101|20061231|20060315   |  |||NStudio di prova|2006"));
}

TEST_P(HostConversation, LeavesNoTemporaryFolderAndNoEventBehind) {
    hostInMode("DE");
    hostInMode("DD", {"--risposte", "1"});
    EXPECT_TRUE(std::filesystem::is_empty(temporaryParent()));
    for (const auto& entry : std::filesystem::recursive_directory_iterator(runtimeFolder())) {
        EXPECT_THAT(entry.path().filename().string(), Not(HasSubstr("planner-host")));
    }
}

TEST_P(HostConversation, KeepsTheTemporaryFolderWhenAsked) {
    hostInMode("E", {"--conserva"});
    const std::filesystem::directory_iterator made(temporaryParent());
    ASSERT_NE(made, std::filesystem::directory_iterator{});
    EXPECT_EQ(std::filesystem::file_size(made->path() / "transito.dat"), 121u);
    EXPECT_EQ(std::filesystem::file_size(made->path() / "wplanner"), 22'800u);
    EXPECT_EQ(std::filesystem::file_size(made->path() / "wcollab"), 3u * 125);
}

TEST_P(HostConversation, WorksInAFolderWithBlanksAndAccents) {
    const std::string path = folder().generic_string() + "/studio perché no";
    const RunResult result =
        hostInMode("DE", {"--archivio", path, "--campione", "--transito", "il transito.dat"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(diary().size(), 2u);
    EXPECT_EQ(std::filesystem::file_size(pathOf(path) / "il transito.dat"), 121u);
}

INSTANTIATE_TEST_SUITE_P(Modes, HostConversation, testing::Values("evento", "polling"));

TEST_F(HostTest, AGivenEventNameServesEveryPlannerOfATour) {
    const RunResult result =
        host("DE", {"--giro", "--evento", "prova", "--anno", "2006", "--collaboratori", "2"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(diary().size(), 6u);
    EXPECT_THAT(result.output, HasSubstr("transito.dat 1 prova\n"));
}

TEST_F(HostTest, FlagZeroInPollingModeHasTheMarkerRemoved) {
    const RunResult result = host("", {"--modo", "polling", "--flag", "0", "--conserva"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("ha tolto TvPlaOK.lck"));
    EXPECT_TRUE(diary().empty());
}

TEST_F(HostTest, HelpNeedsNoPlanner) {
    const RunResult result = host("", {"--help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("Uso: planner-host"));
    EXPECT_TRUE(diary().empty());
}

TEST_F(HostTest, WrongUsageIsExplained) {
    const RunResult result = host("", {"--tipo", "X"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("--tipo: valore \"X\" non valido: serve M, G o A"));
    EXPECT_TRUE(diary().empty());
}

} // namespace planner::toolstest
