// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario.h"

#include <csignal>

namespace planner::e2e {

namespace {

struct Host {
    std::string name;
    std::vector<std::string> words; // its program, and what follows planner and folder
    std::vector<std::string> last;
};

void PrintTo(const Host& host, std::ostream* out) {
    *out << host.name;
}

/// A host that the documents show, with the planner and a user who presses keys.
class HostScenario : public Scenario, public testing::WithParamInterface<Host> {
protected:
    void SetUp() override {
        if (E2E_SANITIZED && GetParam().name == "Python") {
            GTEST_SKIP() << "the interpreter cannot load a library that a sanitizer watches";
        }
    }
    std::unique_ptr<Processo> startHost(const std::string& plannerFile = PLANNER_FILE) {
        std::vector<std::string> words = GetParam().words;
        words.insert(words.end(), {plannerFile, archivio.path()});
        words.insert(words.end(), GetParam().last.begin(), GetParam().last.end());
        return std::make_unique<Processo>(words, schermo.environment(), Errors::Dropped);
    }
    void press(const std::string& key) const {
        schermo.tool({"xdotool", "search", "--sync", "--onlyvisible", "--name", "^Planner Annuale$",
                      "windowactivate", "--sync"});
        schermo.tool({"xdotool", "key", key});
    }
    pid_t plannerOf(const Processo& host) const {
        return std::stoi(schermo.tool({"pgrep", "-P", std::to_string(host.pid()), "-x", "planner"}));
    }

    void playAYearAndAnother() {
        const auto host = startHost();
        press("alt+Left"); // the year before: the host asks again
        EXPECT_EQ(host->readLine(), "20060315  P");
        press("Escape");
        EXPECT_EQ(host->readLine(), "20060315  E");
        EXPECT_EQ(host->exitCode(), 0);
    }
    void killThePlannerThatServesTheSecondRequest() {
        const auto host = startHost();
        press("alt+Left");
        EXPECT_EQ(host->readLine(), "20060315  P");
        press("Shift_L"); // the window of the second request stands
        ::kill(plannerOf(*host), SIGKILL);
        EXPECT_NE(host->exitCode(), 0);
    }
};

class DocumentHosts : public HostScenario {};
class FirstHosts : public HostScenario {};

std::string nameOf(const testing::TestParamInfo<Host>& host) {
    return host.param.name;
}

} // namespace

TEST_P(FirstHosts, PrintEachAnswerUntilTheUserClosesThePlanner) {
    playAYearAndAnother();
}

TEST_P(FirstHosts, NoticeAPlannerThatDiesWhileTheyWait) {
    killThePlannerThatServesTheSecondRequest();
}

TEST_P(DocumentHosts, PrintEachAnswerUntilTheUserClosesThePlanner) {
    playAYearAndAnother();
}

TEST_P(DocumentHosts, NoticeAPlannerThatDiesWhileTheyWait) {
    killThePlannerThatServesTheSecondRequest();
}

TEST_P(DocumentHosts, NoticeAPlannerThatDiesBeforeItsFirstAnswer) {
    const auto host = startHost();
    press("Shift_L");
    ::kill(plannerOf(*host), SIGKILL);
    EXPECT_NE(host->exitCode(), 0);
}

TEST_P(DocumentHosts, NoticeAPlannerThatCannotBeStarted) {
    const auto host = startHost(archivio.path("nowhere"));
    EXPECT_NE(host->exitCode(), 0);
}

INSTANTIATE_TEST_SUITE_P(Languages, DocumentHosts,
                         testing::Values(Host{"C", {HOST_IN_C}, {}},
                                         Host{"Python", {"python3", HOST_IN_PYTHON}, {IPC_LIBRARY}}),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Languages, FirstHosts,
                         testing::Values(Host{"C", {FIRST_HOST_IN_C}, {}},
                                         Host{"Python", {"python3", FIRST_HOST ".py"}, {IPC_LIBRARY}},
                                         Host{"Shell", {"sh", FIRST_HOST ".sh"}, {}}),
                         nameOf);

} // namespace planner::e2e
