// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario_in_session.h"

namespace planner::e2e {

namespace {

class LogOut : public ScenarioInSession {
protected:
    Programma& startOn(const std::string& request) {
        archivio.writeTransit(request);
        ospite.startWaiting();
        return startWithEvent();
    }
    void callOff() {
        session.await("registered");
        session.callOffLogOut();
        session.await("saved");
    }
};

} // namespace

TEST_F(LogOut, ThePlannerAsksNotToBeStartedAgain) {
    constexpr const char* never = "restart 3";
    startOn(requestBytes('M'));
    EXPECT_EQ(session.next(), never);
    EXPECT_EQ(session.next(), "registered");
    session.callOffLogOut();
    EXPECT_EQ(session.next(), never);
}

TEST_F(LogOut, TheHostIsAnsweredBeforeTheSessionEnds) {
    Programma& planner = startOn(requestBytes('M'));
    window(planner, "Planner Mensile").activate();
    session.logOut();
    session.await("gone");
    EXPECT_EQ(archivio.transit(), closedOn("20060315", requestBytes('M')));
    EXPECT_EQ(ospite.answer(), archivio.transit());
    EXPECT_EQ(planner.exitCode(), 0);
}

TEST_F(LogOut, CalledOffItLeavesTheWindowAndTheRecordAsTheyWere) {
    const Programma& planner = startOn(requestBytes('M'));
    const Finestra finestra = window(planner, "Planner Mensile");
    callOff();
    finestra.press("ctrl+l"); // taken after what the session manager has said
    window(planner, "Selezione Collaboratori").press("Escape");
    EXPECT_TRUE(finestra.isVisible());
    EXPECT_FALSE(ospite.isTold());
    EXPECT_EQ(archivio.transit(), requestBytes('M'));
    finestra.press("Escape");
    EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes('M')));
}

TEST_F(LogOut, CalledOffWhileThePlannerWaitsForItsHostItLeavesItWaiting) {
    Programma& planner = startOn(requestBytes('A'));
    window(planner, "Planner Annuale").press("alt+Left");
    const std::string answered = ospite.answer();
    callOff();
    EXPECT_TRUE(planner.comesToSleep());
    EXPECT_EQ(archivio.transit(), answered);
    archivio.writeTransit(requestBytes('M'));
    ospite.startWaiting();
    EXPECT_TRUE(ospite.signal());
    escape(planner);
    EXPECT_EQ(ospite.answer(), closedOn("20060315", requestBytes('M')));
    EXPECT_EQ(planner.exitCode(), 0);
}

} // namespace planner::e2e
