// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario.h"

namespace planner::e2e {

namespace {

using SeveralPlanners = Scenario;

} // namespace

TEST_F(SeveralPlanners, AfterAKilledOneTheNextServesTheSameEvent) {
    archivio.writeTransit(requestBytes('M'));
    ospite.startWaiting();
    Programma& killed = startWithEvent();
    window(killed, "Planner Mensile").activate();
    killed.kill();
    EXPECT_EQ(archivio.transit(), requestBytes('M'));

    archivio.writeTransit(requestBytes('A', "20060501"));
    Programma& next = startWithEvent();
    const Finestra finestra = window(next, "Planner Annuale");
    EXPECT_FALSE(ospite.isTold()) << "nobody has answered yet";
    finestra.press("Escape");
    EXPECT_EQ(ospite.answer(), closedOn("20060501", requestBytes('A', "20060501")));
    EXPECT_EQ(next.exitCode(), 0);
}

TEST_F(SeveralPlanners, AfterAKilledOneTheNextServesTheMarkerThatStayed) {
    archivio.writeTransit(requestBytes('M'));
    archivio.putMarker(Archivio::LockPl);
    Programma& killed = startPolling();
    window(killed, "Planner Mensile").activate();
    killed.kill();
    EXPECT_TRUE(archivio.exists(Archivio::LockPl));

    Programma& next = startPolling();
    escape(next);
    EXPECT_EQ(next.exitCode(), 0);
    EXPECT_FALSE(archivio.exists(Archivio::LockPl));
    EXPECT_EQ(archivio.transit(), closedOn("20060315", requestBytes('M')));
}

TEST_F(SeveralPlanners, TwoAtOnceDoNotDisturbEachOther) {
    const Archivio otherArchive;
    const std::string otherEvent = evento + "-2";
    Ospite otherHost(otherEvent, otherArchive.transitPath());
    archivio.writeTransit(requestBytes('M', "20060401"));
    otherArchive.writeTransit(requestBytes('M', "20060502"));
    ospite.startWaiting();
    otherHost.startWaiting();
    Programma& first = startWithEvent();
    Programma& second = start({otherArchive.transitPath(), "1", otherEvent});
    const Finestra firstWindow = window(first, "Planner Mensile");
    const Finestra secondWindow = window(second, "Planner Mensile");

    firstWindow.press("Escape");
    EXPECT_EQ(ospite.answer(), closedOn("20060401", requestBytes('M', "20060401")));
    EXPECT_EQ(first.exitCode(), 0);
    EXPECT_TRUE(secondWindow.isVisible());
    EXPECT_FALSE(otherHost.isTold());
    EXPECT_EQ(otherArchive.transit(), requestBytes('M', "20060502"));

    secondWindow.press("Escape");
    EXPECT_EQ(otherHost.answer(), closedOn("20060502", requestBytes('M', "20060502")));
    EXPECT_EQ(second.exitCode(), 0);
}

} // namespace planner::e2e
