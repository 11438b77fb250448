// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario.h"

namespace planner::e2e {

namespace {

constexpr std::chrono::seconds LongEnough{12}; // for a planner that means to end itself
constexpr std::chrono::seconds TooShort{5};

/// The process that has started the planner is gone, while the planner waits for its host.
class LongWaitForAHost : public Scenario {
protected:
    LongWaitForAHost() {
        adoptOrphans();
        archivio.writeTransit(requestBytes('A'));
    }

    /// The words that start a planner, with others before them.
    std::vector<std::string> planned(std::vector<std::string> words) const {
        const auto planner = Programma::commandLine({archivio.transitPath(), "1", evento});
        words.insert(words.end(), planner.begin(), planner.end());
        return words;
    }
    /// The user asks for another year: the planner waits from then on.
    void answer(const Programma& planner) const {
        const Finestra year = window(planner, "Planner Annuale");
        year.press("alt+Left");
        EXPECT_TRUE(year.disappears());
    }
    const std::string answered = answeredWith("20060315  P", requestBytes('A'));
};

/// The same with a starter that is a host and has had an answer.
class LongWaitForAStarter : public LongWaitForAHost {
protected:
    LongWaitForAStarter() {
        answer(planner);
        EXPECT_EQ(starter.readLine(), "told");
    }

    Processo starter{planned({STARTER_FILE, evento}), plannerEnvironment()};
    Programma planner{static_cast<pid_t>(std::stol(starter.readLine()))};
};

} // namespace

TEST_F(LongWaitForAStarter, ThePlannerEndsItselfAfterTenSeconds) {
    starter.kill();
    EXPECT_FALSE(planner.endsWithin(TooShort));
    EXPECT_TRUE(eventStands());
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_FALSE(eventStands());
    EXPECT_EQ(archivio.transit(), answered);
}

TEST_F(LongWaitForAStarter, AnotherHostThatHasUsedTheEventKeepsThePlanner) {
    ospite.startWaiting();
    ASSERT_TRUE(ospite.signal());
    answer(planner);
    ospite.answer();
    starter.kill();
    EXPECT_FALSE(planner.endsWithin(LongEnough));
}

TEST_F(LongWaitForAHost, ALauncherThatEndsBeforeTheFirstAnswerKeepsThePlanner) {
    Processo launcher(planned({"sh", "-c", "\"$@\" >/dev/null & echo $!", "launcher"}), plannerEnvironment());
    Programma planner(static_cast<pid_t>(std::stol(launcher.readLine())));
    EXPECT_EQ(launcher.exitCode(), 0);
    answer(planner);
    EXPECT_FALSE(planner.endsWithin(LongEnough));
    EXPECT_EQ(ospite.answer(), answered);
}

} // namespace planner::e2e
