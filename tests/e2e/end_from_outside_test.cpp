// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_in_session.h"

#include <algorithm>
#include <csignal>
#include <gmock/gmock.h>

namespace planner::e2e {

namespace {

/// A planner that is ended from outside.
class EndFromOutside : public ScenarioInSession {
public:
    // The ways of the end.
    void terminate() { ::kill(m_planner->pid(), SIGTERM); }
    void interrupt() { ::kill(m_planner->pid(), SIGINT); }
    void hangUp() { ::kill(m_planner->pid(), SIGHUP); }
    void cutOff() { schermo.cutOff("planner"); }
    void loseDisplay() {
        schermo.awaitProgram("planner"); // one that has not come yet has no display to lose
        schermo.shutDown();
    }
    void logOut() {
        session.await("registered");
        session.logOut();
    }

    // What the planner is at when it comes.
    void start();
    void showWindow();
    void pickSomebody();
    void showMessage();
    void askForKind();
    void showStaff();
    void showChart();
    void saveChart();
    void openMenu();
    void waitAfterAnswer();
    void waitKeptLoaded();
    void pollIdly();
    void markRequest();
    void showPolledWindow();

protected:
    Programma& planner() const { return *m_planner; }
    std::string windowTitle() const;
    void press(const std::string& key) const { window(*m_planner, windowTitle()).press(key); }
    void answer(const std::string& letter);

    char m_tipoplanner = 'M';
    std::string m_request;

private:
    Programma* m_planner = nullptr;
};

std::string EndFromOutside::windowTitle() const {
    return m_tipoplanner == 'M'   ? "Planner Mensile"
           : m_tipoplanner == 'G' ? "Planner Giornaliero"
                                  : "Planner Annuale";
}

void EndFromOutside::start() {
    m_request = requestBytes(m_tipoplanner);
    archivio.writeTransit(m_request);
    m_planner = &startWithEvent();
    EXPECT_TRUE(m_planner->comesToHoldSignals());
}

void EndFromOutside::showWindow() {
    start();
    window(*m_planner, windowTitle()).activate();
}

void EndFromOutside::pickSomebody() {
    showWindow();
    press("Right");
    press("Down");
}

void EndFromOutside::showMessage() {
    archivio.remove("wrighipl");
    start();
    window(*m_planner, "Planner").activate();
}

void EndFromOutside::askForKind() {
    showWindow();
    press("ctrl+n");
    window(*m_planner, "Inserimento Impegni").activate();
}

void EndFromOutside::showStaff() {
    showWindow();
    press("ctrl+l");
    window(*m_planner, "Selezione Collaboratori").activate();
}

void EndFromOutside::showChart() {
    showWindow();
    press("ctrl+g");
    window(*m_planner, "Planner").activate();
}

void EndFromOutside::saveChart() {
    showChart();
    window(*m_planner, "Planner").press("ctrl+s");
    window(*m_planner, "Salva il grafico").activate();
}

void EndFromOutside::openMenu() {
    showWindow();
    press("Menu");
    EXPECT_TRUE(comesTrue([this] { return Finestra::count(schermo, *m_planner) == 2; }));
}

void EndFromOutside::answer(const std::string& letter) {
    m_request = ospite.answer();
    EXPECT_EQ(std::string(1, actionIn(m_request)), letter);
    EXPECT_TRUE(comesTrue([this] { return showsNoWindow(*m_planner); }));
}

void EndFromOutside::waitAfterAnswer() {
    showWindow();
    press("alt+Left");
    answer("P");
}

void EndFromOutside::waitKeptLoaded() {
    showWindow();
    window(*m_planner, windowTitle()).click(160, 28);
    answer("F");
}

void EndFromOutside::pollIdly() {
    m_request = requestBytes(m_tipoplanner);
    archivio.writeTransit(m_request);
    m_planner = &startPolling();
    schermo.awaitProgram("planner");
}

void EndFromOutside::markRequest() {
    pollIdly();
    archivio.putMarker(Archivio::LockPl);
}

void EndFromOutside::showPolledWindow() {
    markRequest();
    window(*m_planner, windowTitle()).activate();
}

struct Way {
    const char* name;
    void (EndFromOutside::*happen)();
};

constexpr std::array Ways{
    Way{"Terminated", &EndFromOutside::terminate},    Way{"Interrupted", &EndFromOutside::interrupt},
    Way{"HungUp", &EndFromOutside::hangUp},           Way{"CutOff", &EndFromOutside::cutOff},
    Way{"DisplayLost", &EndFromOutside::loseDisplay}, Way{"LoggedOut", &EndFromOutside::logOut},
};

enum class Host { Waits, Polls };

struct State {
    const char* name;
    void (EndFromOutside::*reach)();
    Host host;
    char tipoplanner;
    std::vector<std::string_view> answers; // one of them; none where nobody has asked
};

constexpr std::string_view Closed = "20060315  E";
constexpr std::string_view NoWindow = "00000000  E";

const std::array States{
    State{"AtTheStart", &EndFromOutside::start, Host::Waits, 'M', {NoWindow, Closed}},
    State{"WithTheMonth", &EndFromOutside::showWindow, Host::Waits, 'M', {Closed}},
    State{"WithTheDay", &EndFromOutside::showWindow, Host::Waits, 'G', {Closed}},
    State{"WithTheYear", &EndFromOutside::showWindow, Host::Waits, 'A', {Closed}},
    State{"WithSomebodyPicked", &EndFromOutside::pickSomebody, Host::Waits, 'M', {"20060316BLE"}},
    State{"InAMessage", &EndFromOutside::showMessage, Host::Waits, 'M', {Closed}},
    State{"InTheQuestionForAKind", &EndFromOutside::askForKind, Host::Waits, 'M', {Closed}},
    State{"WithTheStaffList", &EndFromOutside::showStaff, Host::Waits, 'M', {Closed}},
    State{"InAChart", &EndFromOutside::showChart, Host::Waits, 'G', {Closed}},
    State{"WhereAChartIsSaved", &EndFromOutside::saveChart, Host::Waits, 'G', {Closed}},
    State{"InAMenu", &EndFromOutside::openMenu, Host::Waits, 'M', {Closed}},
    State{"WaitingForTheHost", &EndFromOutside::waitAfterAnswer, Host::Waits, 'A', {}},
    State{"WaitingKeptLoaded", &EndFromOutside::waitKeptLoaded, Host::Waits, 'M', {}},
    State{"PollingIdly", &EndFromOutside::pollIdly, Host::Polls, 'M', {}},
    State{"PollingAFreshMarker", &EndFromOutside::markRequest, Host::Polls, 'M', {NoWindow, Closed}},
    State{"PollingWithItsWindow", &EndFromOutside::showPolledWindow, Host::Polls, 'G', {Closed}},
};

struct Case {
    Way way;
    const State* state;
};

void PrintTo(const Case& tested, std::ostream* out) {
    *out << tested.way.name << tested.state->name;
}

class EveryEnd : public EndFromOutside, public testing::WithParamInterface<Case> {
protected:
    /// Brings the end about, and checks that the planner ends well.
    void end();
    bool answeredAsClosed(const std::string& record) const;
};

void EveryEnd::end() {
    const auto before = std::chrono::steady_clock::now();
    (this->*GetParam().way.happen)();
    EXPECT_EQ(planner().exitCode(), 0);
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - before;
    RecordProperty("milliseconds", static_cast<int>(taken.count()));
}

bool EveryEnd::answeredAsClosed(const std::string& record) const {
    const auto& answers = GetParam().state->answers;
    return std::any_of(answers.begin(), answers.end(),
                       [&](std::string_view answer) { return record == answeredWith(answer, m_request); });
}

enum class Choice { TwoWaysForEachState, AllOthers };

/// The ways of one state are three places apart, and go on by one with each state: every way meets states of
/// all sorts.
std::vector<Case> cases(Choice choice) {
    std::vector<Case> chosen;
    for (std::size_t state = 0; state < States.size(); ++state) {
        for (std::size_t way = 0; way < Ways.size(); ++way) {
            const bool soon = way % 3 == state % 3;
            if (soon == (choice == Choice::TwoWaysForEachState)) {
                chosen.push_back({Ways.at(way), &States.at(state)});
            }
        }
    }
    return chosen;
}

std::string nameOf(const testing::TestParamInfo<Case>& tested) {
    return std::string(tested.param.way.name) + tested.param.state->name;
}

} // namespace

TEST_P(EveryEnd, IsOneForTheHostToo) {
    const State& state = *GetParam().state;
    m_tipoplanner = state.tipoplanner;
    (this->*state.reach)();
    end();
    if (state.answers.empty()) {
        EXPECT_EQ(archivio.transit(), m_request) << "nobody has asked";
    } else if (state.host == Host::Waits) {
        const std::string told = ospite.answer();
        EXPECT_TRUE(answeredAsClosed(told)) << told;
        EXPECT_EQ(archivio.transit(), told);
    } else {
        EXPECT_TRUE(answeredAsClosed(archivio.transit())) << archivio.transit();
    }
    EXPECT_FALSE(eventStands()) << "the host is told once";
    EXPECT_FALSE(archivio.exists(Archivio::LockPl));
}

// The request and the end are both there when the planner comes to look.
TEST_F(EndFromOutside, ARequestThatCameJustBeforeItIsAnswered) {
    m_tipoplanner = 'A';
    waitAfterAnswer();
    archivio.writeTransit(m_request);
    ::kill(planner().pid(), SIGSTOP);
    EXPECT_TRUE(ospite.signal());
    terminate();
    ::kill(planner().pid(), SIGCONT);
    EXPECT_THAT(ospite.answer(),
                testing::AnyOf(answeredWith(NoWindow, m_request), answeredWith(Closed, m_request)));
    EXPECT_EQ(planner().exitCode(), 0);
    EXPECT_FALSE(eventStands());
}

INSTANTIATE_TEST_SUITE_P(Some, EveryEnd, testing::ValuesIn(cases(Choice::TwoWaysForEachState)), nameOf);
INSTANTIATE_TEST_SUITE_P(Long, EveryEnd, testing::ValuesIn(cases(Choice::AllOthers)), nameOf);

} // namespace planner::e2e
