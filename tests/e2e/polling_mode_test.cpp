// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/inamovibile.h"
#include "e2e/support/scenario.h"

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

namespace planner::e2e {

namespace {

using Kind = Osservatore::Kind;

class PollingMode : public Scenario {
protected:
    /// As the host does: the request first, the marker after it.
    void putRequest(char tipoplanner = 'M') const {
        archivio.writeTransit(requestBytes(tipoplanner));
        archivio.putMarker(Archivio::LockPl);
    }
    std::string missingFileText() const {
        return "Attenzione ! Problemi con il file di transito " + archivio.transitPath();
    }
    std::string undeletableMarkerText() const {
        return "Attenzione ! La risposta è pronta, ma il file " + archivio.path(Archivio::LockPl) +
               " non può essere eliminato e il programma dello studio resta in attesa. Controllare i "
               "permessi della cartella, oppure eliminare il file a mano.";
    }
    /// There is a transit file at every moment, the old one or the new one.
    void replaceTransit(const std::string& bytes) const {
        archivio.write("nuovo", bytes);
        std::filesystem::rename(archivio.path("nuovo"), archivio.transitPath());
    }
    /// Answers "P" in the yearly planner.
    void previousYear(const Programma& planner) const {
        const Finestra finestra = window(planner, "Planner Annuale");
        finestra.activate();
        finestra.press("alt+Left");
        EXPECT_TRUE(finestra.disappears());
    }
};

} // namespace

TEST_F(PollingMode, EscapeAnswersTheRequestThatTheMarkerAnnounces) {
    putRequest('G');
    Programma& planner = startPolling();
    escape(planner, "Planner Giornaliero");
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_EQ(archivio.transit(), closedOn("20060315", requestBytes('G')));
    EXPECT_FALSE(archivio.exists(Archivio::LockPl));
}

TEST_F(PollingMode, TheMarkerStaysWhileTheWindowIsOpen) {
    putRequest();
    Programma& planner = startPolling();
    const Finestra finestra = window(planner, "Planner Mensile");
    finestra.activate();
    EXPECT_TRUE(archivio.exists(Archivio::LockPl));
    EXPECT_EQ(archivio.transit(), requestBytes('M'));
    finestra.press("Escape");
    EXPECT_EQ(planner.exitCode(), 0);
}

TEST_F(PollingMode, TheMarkerGoesOnlyAfterTheAnswerIsWrittenAndClosed) {
    putRequest();
    Osservatore osservatore({archivio.path()});
    Programma& planner = startPolling();
    escape(planner);
    const auto happened = osservatore.until({Kind::Deleted, std::string(Archivio::LockPl)});
    const std::string file(Archivio::Transit);
    const auto written =
        std::find(happened.begin(), happened.end(), Osservatore::Fatto{Kind::Modified, file});
    const std::vector<Osservatore::Fatto> fromThere(written, happened.end());
    EXPECT_EQ(fromThere, (std::vector<Osservatore::Fatto>{{Kind::Modified, file},
                                                          {Kind::ClosedAfterWriting, file},
                                                          {Kind::Deleted, std::string(Archivio::LockPl)}}));
    EXPECT_EQ(planner.exitCode(), 0);
}

TEST_F(PollingMode, WithoutMarkerThePlannerShowsNothingAndComesToRest) {
    archivio.writeTransit(requestBytes('M'));
    Programma& planner = startPolling();
    EXPECT_TRUE(planner.comesToRest(std::chrono::seconds{2}));
    EXPECT_TRUE(showsNoWindow(planner));
    EXPECT_EQ(archivio.transit(), requestBytes('M'));
}

TEST_F(PollingMode, AMarkerThatComesLaterOpensTheWindowSoon) {
    archivio.writeTransit(requestBytes('M'));
    Programma& planner = startPolling();
    ASSERT_TRUE(planner.comesToRest());
    archivio.putMarker(Archivio::LockPl);
    const bool soon =
        comesTrue([&] { return !showsNoWindow(planner); }, std::chrono::seconds(E2E_SANITIZED ? 10 : 2));
    EXPECT_TRUE(soon);
    escape(planner);
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_EQ(archivio.transit(), closedOn("20060315", requestBytes('M')));
}

TEST_F(PollingMode, TheStartFlag0OnlyRemovesTheOtherMarker) {
    putRequest();
    archivio.putMarker(Archivio::TvPlaOK);
    Programma& planner = startPolling("0");
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_FALSE(archivio.exists(Archivio::TvPlaOK));
    EXPECT_TRUE(archivio.exists(Archivio::LockPl));
    EXPECT_EQ(archivio.transit(), requestBytes('M'));
}

TEST_F(PollingMode, TheStartFlag0WithoutTheOtherMarkerJustEnds) {
    archivio.writeTransit(requestBytes('M'));
    EXPECT_EQ(startPolling("0").exitCode(), 0);
}

TEST_F(PollingMode, AnyOtherStartFlagLeavesTheOtherMarkerAlone) {
    putRequest();
    archivio.putMarker(Archivio::TvPlaOK);
    Programma& planner = startPolling("1");
    escape(planner);
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_TRUE(archivio.exists(Archivio::TvPlaOK));
}

TEST_F(PollingMode, AMissingTransitFileAtStartIsSaidAndEndsTheProgram) {
    archivio.putMarker(Archivio::LockPl);
    archivio.putMarker(Archivio::TvPlaOK);
    Programma& planner = startPolling("0");
    confirmMessage(planner, "critical", missingFileText());
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_FALSE(archivio.exists(Archivio::Transit));
    EXPECT_TRUE(archivio.exists(Archivio::TvPlaOK));
}

TEST_F(PollingMode, AMarkerWithoutTransitFileEndsTheProgramSilently) {
    archivio.writeTransit(requestBytes('M'));
    Programma& planner = startPolling();
    ASSERT_TRUE(planner.comesToRest());
    archivio.remove(Archivio::Transit);
    archivio.putMarker(Archivio::LockPl);
    // A message box would keep it from ending.
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_FALSE(archivio.exists(Archivio::Transit));
    EXPECT_TRUE(archivio.exists(Archivio::LockPl));
}

TEST_F(PollingMode, ATransitFileThatIsNoFileIsSaidOnceAndServedAsSoonAsItIsOne) {
    archivio.writeTransit(requestBytes('M'));
    Programma& planner = startPolling();
    ASSERT_TRUE(planner.comesToRest());
    ASSERT_EQ(::mkfifo(archivio.path("pipe").c_str(), 0600), 0);
    std::filesystem::rename(archivio.path("pipe"), archivio.transitPath());
    archivio.putMarker(Archivio::LockPl);
    confirmMessage(planner, "critical", missingFileText());
    EXPECT_TRUE(planner.comesToRest(std::chrono::seconds{2}));
    EXPECT_TRUE(showsNoWindow(planner));
    replaceTransit(requestBytes('M'));
    escape(planner);
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_EQ(archivio.transit(), closedOn("20060315", requestBytes('M')));
    EXPECT_FALSE(archivio.exists(Archivio::LockPl));
}

TEST_F(PollingMode, AMarkerThatCannotBeDeletedIsSaidOnceAndTheRequestServedOnce) {
    putRequest('A');
    Inamovibile marker(archivio.path(Archivio::LockPl));
    if (!marker.holds()) {
        GTEST_SKIP() << "this file system, or this user, cannot keep a file from being deleted";
    }
    Programma& planner = startPolling();
    previousYear(planner);
    confirmMessage(planner, "critical", undeletableMarkerText());
    EXPECT_TRUE(planner.comesToRest(std::chrono::seconds{2}));
    EXPECT_TRUE(showsNoWindow(planner));
    EXPECT_EQ(archivio.transit(), answeredWith("20060315  P", requestBytes('A')));
    replaceTransit(requestBytes('G')); // another record under the same marker
    escape(planner, "Planner Giornaliero");
    EXPECT_EQ(planner.exitCode(), 1) << "an answer \"E\" ends it, without another message";
    EXPECT_TRUE(archivio.exists(Archivio::LockPl));
    EXPECT_EQ(archivio.transit(), closedOn("20060315", requestBytes('G')));
}

TEST_F(PollingMode, AMarkerThatCanBeDeletedAgainGoesByItself) {
    putRequest('A');
    Inamovibile marker(archivio.path(Archivio::LockPl));
    if (!marker.holds()) {
        GTEST_SKIP() << "this file system, or this user, cannot keep a file from being deleted";
    }
    Programma& planner = startPolling();
    previousYear(planner);
    confirmMessage(planner, "critical", undeletableMarkerText());
    marker.release();
    EXPECT_TRUE(comesTrue([&] { return !archivio.exists(Archivio::LockPl); }));
    EXPECT_TRUE(showsNoWindow(planner));
    putRequest();
    escape(planner);
    EXPECT_EQ(planner.exitCode(), 0);
}

} // namespace planner::e2e
