// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/ftavtrmpl.h"
#include "host_fixture.h"

#include <gmock/gmock.h>
#include <optional>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Lock = "C:\\arch\\LockPl.lck";
constexpr const char* Available = "C:\\arch\\TvPlaOK.lck";
constexpr const char* Trouble = "Attenzione ! Problemi con il file di transito C:\\arch\\trans.dat";

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

TEST_F(PollingTest, AnErrorInATickEndsTheTickAndLeavesTimerAndMarker) {
    files.refuse(Transito);
    EXPECT_EQ(tickWithMarker(), Seguito::Continua);
    EXPECT_THAT(journal, IsEmpty());
    EXPECT_TRUE(timer.enabled);
    EXPECT_TRUE(files.fileExists(Lock));
    files.allow(Transito);
    answers = {"20060315RBD"};
    EXPECT_EQ(form->Timer1_Timer(), Seguito::Continua);
    EXPECT_FALSE(files.fileExists(Lock));
}

TEST_F(PollingTest, AnAnswerThatCannotBeWrittenLeavesMarkerAndTimer) {
    files.refuseWriting(Transito);
    answers = {"20060315RBD"};
    EXPECT_EQ(tickWithMarker(), Seguito::Continua);
    EXPECT_THAT(messageTexts(), ElementsAre(Trouble));
    EXPECT_TRUE(files.fileExists(Lock));
    EXPECT_TRUE(timer.enabled);
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
