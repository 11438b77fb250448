// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host_fixture.h"

#include <fstream>
#include <gmock/gmock.h>

namespace planner::toolstest {

using testing::HasSubstr;

namespace {

class MisbehavingPlanner : public HostModeTest {};

} // namespace

TEST_P(MisbehavingPlanner, ThatDiesAtOnceIsNoticed) {
    const RunResult result = hostInMode("!");
    EXPECT_TRUE(result.inTime);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("finito senza rispondere (codice d'uscita 9)"));
    EXPECT_TRUE(std::filesystem::is_empty(temporaryParent()));
}

TEST_P(MisbehavingPlanner, ThatDiesLaterIsNoticed) {
    const RunResult result = hostInMode("DF!");
    EXPECT_TRUE(result.inTime);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(diary().size(), 3u);
}

TEST_P(MisbehavingPlanner, ThatEndsBadlyAfterItsLastAnswerIsNoticed) {
    const RunResult result = hostInMode("e");
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("finito male (codice d'uscita 7)"));
}

TEST_P(MisbehavingPlanner, ThatAnswersNonsenseIsNoticedAndEnded) {
    const RunResult result = hostInMode("x");
    EXPECT_TRUE(result.inTime);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("risposta non valida"));
}

TEST_P(MisbehavingPlanner, ThatSpoilsTheReservedFieldsIsReported) {
    const RunResult result = hostInMode("rE", {"--riservato1", "pratica1"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("attenzione: il planner ha cambiato i campi riservati"));
    EXPECT_THAT(diary().back(), HasSubstr("|pratica1|"));
}

TEST_P(MisbehavingPlanner, ThatCannotBeStartedIsNamed) {
    const RunResult result = hostInMode("", {"--planner", "/nessun/planner"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("impossibile avviare il planner /nessun/planner: il file non c'è"));
}

INSTANTIATE_TEST_SUITE_P(Modes, MisbehavingPlanner, testing::Values("evento", "polling"));

TEST_F(HostTest, AnEventNameThatIsTooLongIsSaid) {
    const RunResult result = host("w", {"--collaboratori", "2", "--evento", std::string(300, 'n')});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, HasSubstr("il nome è troppo lungo"));
}

TEST_F(HostTest, AMarkerThatIsThereAlreadyIsLeftAlone) {
    const std::filesystem::path marker = folder() / "LockPl.lck";
    std::ofstream(marker).put('x');
    const RunResult result = host("E", {"--modo", "polling", "--archivio", folder().generic_string()});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, HasSubstr("una richiesta è già in attesa"));
    EXPECT_TRUE(std::filesystem::exists(marker));
    EXPECT_TRUE(diary().empty());
}

TEST_F(HostTest, AFolderThatIsMissingIsAFileError) {
    const RunResult result = host("E", {"--archivio", (folder() / "nessuna").generic_string()});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, HasSubstr("nessuna: "));
}

} // namespace planner::toolstest
