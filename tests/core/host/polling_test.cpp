// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/ftavtrmpl.h"
#include "support/host_fixture.h"

#include <gmock/gmock.h>
#include <optional>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Lock = "C:\\arch\\LockPl.lck";
constexpr const char* Available = "C:\\arch\\TvPlaOK.lck";
constexpr const char* Trouble = "Attenzione ! Problemi con il file di transito C:\\arch\\trans.dat";
constexpr const char* MarkerTrouble =
    "Attenzione ! La risposta è pronta, ma il file C:\\arch\\LockPl.lck non può essere eliminato e il "
    "programma dello studio resta in attesa. Controllare i permessi della cartella, oppure eliminare il file "
    "a mano.";

class PollingTest : public HostFixture {
protected:
    PollingTest() { putRequest(richiesta()); }

    void start(const std::string& commandLine = "C:\\arch\\trans.dat 1 NOEVENT") {
        link.emplace(makeLink(commandLine));
        form.emplace(*link, files, timer);
    }
    /// A loaded form with a request waiting; the journal starts after that.
    Seguito tickWithMarker() {
        start();
        form->Form_Load();
        files.put(Lock, "");
        journal.clear();
        return form->Timer1_Timer();
    }
    void tick(int times = 1) {
        for (int i = 0; i < times; ++i) {
            EXPECT_EQ(form->Timer1_Timer(), Seguito::Continua);
        }
    }

    std::optional<mtavtrmpl> link;
    std::optional<Ftavtrmpl> form;
};

TEST_F(PollingTest, LoadStartsTheTimer) {
    start();
    EXPECT_EQ(form->Form_Load(), Seguito::Continua);
    EXPECT_TRUE(timer.enabled);
    EXPECT_THAT(journal, ElementsAre("timer on"));
}

TEST_F(PollingTest, LoadWithoutTransitFileSaysSoAndEnds) {
    files.remove(Transito);
    start();
    EXPECT_EQ(form->Form_Load(), Seguito::Termina);
    EXPECT_THAT(messageTexts(), ElementsAre(Trouble));
    EXPECT_THAT(journal, ElementsAre("message"));
}

TEST_F(PollingTest, LoadWithFlag0RemovesTheHostsMarkerAndEnds) {
    files.put(Available, "");
    start("C:\\arch\\trans.dat 0 NOEVENT");
    EXPECT_EQ(form->Form_Load(), Seguito::Termina);
    EXPECT_FALSE(files.fileExists(Available));
    EXPECT_THAT(journal, ElementsAre("delete TvPlaOK.lck"));
}

TEST_F(PollingTest, LoadWithFlag0AndNoMarkerIsNotAnError) {
    start("C:\\arch\\trans.dat 0 NOEVENT");
    EXPECT_EQ(form->Form_Load(), Seguito::Termina);
    EXPECT_THAT(messageTexts(), IsEmpty());
}

TEST_F(PollingTest, AMissingTransitFileCountsBeforeFlag0) {
    files.remove(Transito);
    files.put(Available, "");
    start("C:\\arch\\trans.dat 0 NOEVENT");
    EXPECT_EQ(form->Form_Load(), Seguito::Termina);
    EXPECT_THAT(messageTexts(), ElementsAre(Trouble));
    EXPECT_TRUE(files.fileExists(Available));
}

TEST_F(PollingTest, OnlyFlag0IsSpecial) {
    files.put(Available, "");
    for (const char* flag : {"1", "O", " ", "9"}) {
        start(std::string("C:\\arch\\trans.dat ") + flag + " NOEVENT");
        EXPECT_EQ(form->Form_Load(), Seguito::Continua) << flag;
    }
    EXPECT_TRUE(files.fileExists(Available));
}

TEST_F(PollingTest, ATickWithoutMarkerDoesNothing) {
    start();
    form->Form_Load();
    journal.clear();
    EXPECT_EQ(form->Timer1_Timer(), Seguito::Continua);
    EXPECT_THAT(journal, IsEmpty());
}

TEST_F(PollingTest, ATickWithMarkerServesTheRequestWithTheTimerOff) {
    answers = {"20060315RBD"};
    EXPECT_EQ(tickWithMarker(), Seguito::Continua);
    EXPECT_THAT(journal, ElementsAre("timer off", "engine made", "WPlanner", "write trans.dat",
                                     "delete LockPl.lck", "timer on"));
    EXPECT_EQ(answerInFile().valret.view(), "20060315RBD");
}

TEST_F(PollingTest, AnAnswerEndingInEReleasesTheEngineAndEnds) {
    answers = {"20060315RBE"};
    EXPECT_EQ(tickWithMarker(), Seguito::Termina);
    EXPECT_THAT(journal, ElementsAre("timer off", "engine made", "WPlanner", "write trans.dat",
                                     "delete LockPl.lck", "timer on", "engine released"));
}

TEST_F(PollingTest, TheEngineStaysForTheNextRequest) {
    answers = {"20060315RBF", "20060315RBD"};
    tickWithMarker();
    files.put(Lock, "");
    journal.clear();
    form->Timer1_Timer();
    EXPECT_THAT(journal,
                ElementsAre("timer off", "WPlanner", "write trans.dat", "delete LockPl.lck", "timer on"));
}

TEST_F(PollingTest, AMarkerWithoutTransitFileEndsSilently) {
    start();
    form->Form_Load();
    files.remove(Transito);
    files.put(Lock, "");
    journal.clear();
    EXPECT_EQ(form->Timer1_Timer(), Seguito::Termina);
    EXPECT_THAT(journal, IsEmpty());
    EXPECT_FALSE(files.fileExists(Transito));
}

TEST_F(PollingTest, ATransitFileThatCannotBeOpenedIsSaidOnceWithTheTimerOffAndTriedAgain) {
    files.refuse(Transito);
    EXPECT_EQ(tickWithMarker(), Seguito::Continua);
    EXPECT_THAT(journal, ElementsAre("timer off", "message", "timer on"));
    EXPECT_TRUE(files.fileExists(Lock));
    tick(3);
    EXPECT_THAT(messageTexts(), ElementsAre(Trouble));
    files.allow(Transito);
    answers = {"20060315RBD"};
    EXPECT_EQ(form->Timer1_Timer(), Seguito::Continua);
    EXPECT_FALSE(files.fileExists(Lock));
    EXPECT_EQ(calls.size(), 1u);
}

TEST_F(PollingTest, ATransitFileThatFailsAgainAfterItWorkedIsSaidAgain) {
    files.refuse(Transito);
    tickWithMarker();
    files.allow(Transito);
    tick();
    files.put(Lock, "");
    files.refuse(Transito);
    tick(3);
    EXPECT_THAT(messageTexts(), ElementsAre(Trouble, Trouble));
}

TEST_F(PollingTest, ATransitFileThatIsGoneAfterATroubleEndsSilently) {
    files.refuse(Transito);
    tickWithMarker();
    files.remove(Transito);
    EXPECT_EQ(form->Timer1_Timer(), Seguito::Termina);
    EXPECT_THAT(messageTexts(), ElementsAre(Trouble));
}

TEST_F(PollingTest, AnAnswerThatTheUserGivesUpEndsTheProgramAndLeavesTheMarker) {
    files.refuseWriting(Transito);
    answers = {"20060315RBD"};
    EXPECT_EQ(tickWithMarker(), Seguito::Rinuncia);
    EXPECT_THAT(journal, ElementsAre("timer off", "engine made", "WPlanner", "message", "timer on",
                                     "engine released"));
    EXPECT_THAT(messageTexts(), ElementsAre(Trouble));
    EXPECT_TRUE(files.fileExists(Lock));
}

TEST_F(PollingTest, AnAnswerIsWrittenAsOftenAsTheUserWishes) {
    files.refuseWriting(Transito);
    answers = {"20060315RBD"};
    messaggi.retries = {[this] { EXPECT_FALSE(timer.enabled); }, [this] { files.allow(Transito); }};
    EXPECT_EQ(tickWithMarker(), Seguito::Continua);
    EXPECT_THAT(messageTexts(), ElementsAre(Trouble, Trouble));
    EXPECT_EQ(answerInFile().valret.view(), "20060315RBD");
    EXPECT_FALSE(files.fileExists(Lock));
    EXPECT_EQ(calls.size(), 1u);
}

TEST_F(PollingTest, AMarkerThatCannotBeDeletedIsSaidOnceWithTheTimerOff) {
    files.refuseDeleting(Lock);
    answers = {"20060315RBD"};
    EXPECT_EQ(tickWithMarker(), Seguito::Continua);
    EXPECT_THAT(journal, ElementsAre("timer off", "engine made", "WPlanner", "write trans.dat",
                                     "delete refused LockPl.lck", "message", "timer on"));
    EXPECT_THAT(messageTexts(), ElementsAre(MarkerTrouble));
}

TEST_F(PollingTest, AMarkerThatStaysServesNothingAgainAndIsTriedSilentlyAtEachTick) {
    files.refuseDeleting(Lock);
    answers = {"20060315RBD"};
    tickWithMarker();
    journal.clear();
    tick(2);
    EXPECT_THAT(journal, ElementsAre("timer off", "delete refused LockPl.lck", "timer on", //
                                     "timer off", "delete refused LockPl.lck", "timer on"));
    files.allow(Lock);
    tick();
    EXPECT_FALSE(files.fileExists(Lock));
    EXPECT_EQ(calls.size(), 1u);
    EXPECT_THAT(messageTexts(), ElementsAre(MarkerTrouble));
}

TEST_F(PollingTest, ANewRecordUnderAMarkerThatStaysIsServedWithoutAnotherMessage) {
    files.refuseDeleting(Lock);
    answers = {"20060315RBD", "20060315RBA"};
    tickWithMarker();
    putRequest(richiesta()); // the same as the first one, not the answer
    tick(2);
    EXPECT_EQ(calls.size(), 2u);
    EXPECT_EQ(answerInFile().valret.view(), "20060315RBA");
    EXPECT_THAT(messageTexts(), ElementsAre(MarkerTrouble));
}

TEST_F(PollingTest, TheSameBytesAreServedAgainOnceTheMarkerWasAway) {
    files.refuseDeleting(Lock);
    answers = {"20060315RBD", "20060315RBD"};
    tickWithMarker();
    files.remove(Lock); // the host does it
    tick();
    files.allow(Lock);
    files.put(Lock, "");
    tick();
    EXPECT_EQ(calls.size(), 2u);
    files.put(Lock, ""); // the planner has deleted it before
    tick();
    EXPECT_EQ(calls.size(), 3u);
}

TEST_F(PollingTest, AMarkerThatCannotBeDeletedIsSaidAgainAfterOneCould) {
    files.refuseDeleting(Lock);
    tickWithMarker();
    files.allow(Lock);
    tick();
    files.put(Lock, "");
    files.refuseDeleting(Lock);
    tick(3);
    EXPECT_THAT(messageTexts(), ElementsAre(MarkerTrouble, MarkerTrouble));
}

TEST_F(PollingTest, AnAnswerEndingInEEndsTheProgramThoughTheMarkerStays) {
    files.refuseDeleting(Lock);
    answers = {"20060315RBE"};
    EXPECT_EQ(tickWithMarker(), Seguito::Termina);
    EXPECT_EQ(answerInFile().valret.view(), "20060315RBE");
    EXPECT_EQ(journal.back(), "engine released");
    EXPECT_THAT(messageTexts(), ElementsAre(MarkerTrouble));
}

TEST_F(PollingTest, AMarkerThatTheHostHasRemovedMeanwhileIsNoTrouble) {
    serve = [this](WPlannerCall& call) {
        call.valret = "20060315RBD";
        files.remove(Lock);
    };
    tickWithMarker();
    EXPECT_THAT(messageTexts(), IsEmpty());
}

TEST_F(PollingTest, TheHostsEventIsNeverUsed) {
    answers = {"20060315RBE"};
    tickWithMarker();
    for (const std::string& entry : journal) {
        EXPECT_EQ(entry.find("["), std::string::npos) << entry;
    }
}

TEST_F(PollingTest, TheMarkersStandInTheTransitFilesFolder) {
    files.put("C:/arch\\x.dat", bytesOf(richiesta()));
    files.put("C:/LockPl.lck", "");
    start("C:/arch\\x.dat 1 noevent");
    answers = {"20060315RBD"};
    form->Form_Load();
    form->Timer1_Timer();
    EXPECT_FALSE(files.fileExists("C:/LockPl.lck"));
}

} // namespace
} // namespace planner::test
