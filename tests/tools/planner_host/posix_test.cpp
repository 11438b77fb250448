// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host_fixture.h"

#include <gmock/gmock.h>

namespace planner::toolstest {

using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

namespace {

/// What is so where there are signals, displays and permissions.
class PlannerOnPosix : public HostModeTest {};

} // namespace

TEST_P(PlannerOnPosix, ThatIsKilledIsNoticed) {
    const RunResult result = hostInMode("Dk");
    EXPECT_TRUE(result.inTime);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("finito senza rispondere (chiuso dal segnale 9)"));
}

TEST_P(PlannerOnPosix, ThatHadNoScreenIsExplained) {
    const std::string missing = "Manca lo schermo: né DISPLAY né WAYLAND_DISPLAY sono impostate.";
    setVariable("WAYLAND_DISPLAY", "");
    setVariable("QT_QPA_PLATFORM", "");
    setVariable("DISPLAY", "");
    EXPECT_THAT(hostInMode("x").errors, HasSubstr(missing));
    EXPECT_THAT(hostInMode("E").errors, Not(HasSubstr(missing)));
    setVariable("DISPLAY", ":1");
    EXPECT_THAT(hostInMode("x").errors, Not(HasSubstr(missing)));
}

TEST_P(PlannerOnPosix, EndsTogetherWithAnInterruptedHost) {
    const RunResult result = hostInMode("w", {}, "waiting");
    EXPECT_TRUE(result.inTime) << "host or planner still holds the output";
    EXPECT_EQ(result.exitCode, 128 + 15);
    EXPECT_THAT(result.output, HasSubstr("ended gently")) << "the planner was killed";
    EXPECT_TRUE(std::filesystem::is_empty(temporaryParent()));
}

TEST_P(PlannerOnPosix, HasAFolderThatNobodyElseEnters) {
    hostInMode("E", {"--conserva"});
    const std::filesystem::directory_iterator made(temporaryParent());
    ASSERT_NE(made, std::filesystem::directory_iterator{});
    using std::filesystem::perms;
    EXPECT_EQ(made->status().permissions() & (perms::group_all | perms::others_all), perms::none);
}

INSTANTIATE_TEST_SUITE_P(Modes, PlannerOnPosix, testing::Values("evento", "polling"));

// The process that was started lives on, the one that plays the planner does not.
TEST_F(HostTest, ThePlannersDeathBehindALauncherIsNoticed) {
    setVariable("FAKE_PLANNER_BEHIND", "1");
    const RunResult result = host("Dk", {"--collaboratori", "2", "--evento", "prova"});
    EXPECT_TRUE(result.inTime);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors,
                HasSubstr("impossibile aspettare l'evento \"prova\": chi lo ha creato è finito"));
}

// The host's next signal comes before the removal or after it: then it fails, or else the wait does.
TEST_F(HostTest, APlannerThatLeavesItsEventAndLivesOnIsSaid) {
    const RunResult result = host("v", {"--collaboratori", "2", "--evento", "prova"});
    EXPECT_TRUE(result.inTime);
    EXPECT_THAT(result.exitCode, AnyOf(2, 3));
    EXPECT_THAT(result.errors,
                AnyOf(HasSubstr("impossibile segnalare l'evento \"prova\": nessun planner"),
                      HasSubstr("impossibile aspettare l'evento \"prova\": chi lo ha creato è finito")));
}

TEST_F(HostTest, AFolderOfEventsThatIsOpenToOthersIsSaid) {
    const std::filesystem::path events = runtimeFolder() / "tavterm-ipc";
    std::filesystem::create_directory(events);
    std::filesystem::permissions(events, std::filesystem::perms::all);
    const RunResult result = host("w", {"--collaboratori", "2", "--evento", "prova"});
    EXPECT_TRUE(result.inTime);
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors,
                HasSubstr("impossibile aspettare l'evento \"prova\": la cartella degli eventi"));
}

TEST_F(HostTest, ABackslashInTheArchivesFolderIsRefused) {
    const RunResult result = host("E", {"--archivio", "C:\\dati"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("--archivio: "));
}

} // namespace planner::toolstest
