// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/host_fixture.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class EventModeTest : public HostFixture {
protected:
    EventModeTest() { putRequest(richiesta()); }

    bool run(const std::string& commandLine = "C:\\arch\\trans.dat 1 EV") {
        mtavtrmpl link = makeLink(commandLine);
        return makeConversation(link).eventLoop();
    }
};

TEST_F(EventModeTest, AnswerEndingInECreatesSignalsAndRemovesTheEventInThatOrder) {
    answers = {"20060315RBE"};
    EXPECT_TRUE(run());
    EXPECT_THAT(journal, ElementsAre("engine made", "WPlanner", "write trans.dat", "flush", "engine released",
                                     "create [EV]", "signal [EV]", "remove [EV]"));
}

TEST_F(EventModeTest, TheEventIsCreatedOnceAndSignalledForEveryAnswer) {
    answers = {"20060315RBD", "20060315RBF", "20060315RBE"};
    ipc.hostActions = {[] {}, [] {}};
    EXPECT_TRUE(run());
    EXPECT_THAT(journal,
                ElementsAre("engine made",                                                            //
                            "WPlanner", "write trans.dat", "flush", "create [EV]", "signal [EV]",     //
                            "wait [EV]",                                                              //
                            "WPlanner", "write trans.dat", "flush", "signal [EV]", "wait [EV]",       //
                            "WPlanner", "write trans.dat", "flush", "engine released", "signal [EV]", //
                            "remove [EV]"));
}

TEST_F(EventModeTest, EachWaitIsFollowedByTheHostsNextRequest) {
    answers = {"20060315RBP", "20050315RBE"};
    ipc.hostActions = {[this] {
        EXPECT_EQ(answerInFile().valret.view(), "20060315RBP");
        auto next = richiesta("A");
        next.startdate.assign("20050101");
        putRequest(next);
    }};
    EXPECT_TRUE(run());
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].tipoplanner, "M");
    EXPECT_EQ(calls[1].tipoplanner, "A");
    EXPECT_EQ(calls[1].startdate, "20050101");
    EXPECT_EQ(answerInFile().valret.view(), "20050315RBE");
}

TEST_F(EventModeTest, AWaitThatReturnsAtOnceServesTheSameRequestAgain) {
    answers = {"20060315RBD", "20060315RBE"};
    ipc.hostActions = {[] {}};
    EXPECT_TRUE(run());
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[1].valret, "20060315RBD");
}

TEST_F(EventModeTest, ALineWithoutBlankRunsWithAnEmptyEventName) {
    files.put("C:\\arch\\trans.d", bytesOf(richiesta()));
    answers = {"20060315RBE"};
    EXPECT_TRUE(run("C:\\arch\\trans.dat"));
    EXPECT_THAT(journal, ElementsAre("engine made", "WPlanner", "write trans.d", "flush", "engine released",
                                     "create []", "signal []", "remove []"));
}

TEST_F(EventModeTest, Flag0HasNoEffect) {
    files.put("C:\\arch\\TvPlaOK.lck", "");
    answers = {"20060315RBE"};
    EXPECT_TRUE(run("C:\\arch\\trans.dat 0 EV"));
    EXPECT_EQ(calls.size(), 1u);
    EXPECT_TRUE(files.fileExists("C:\\arch\\TvPlaOK.lck"));
}

TEST_F(EventModeTest, TheMarkerFilesAreNotTouched) {
    files.put("C:\\arch\\LockPl.lck", "");
    answers = {"20060315RBE"};
    run();
    EXPECT_TRUE(files.fileExists("C:\\arch\\LockPl.lck"));
}

TEST_F(EventModeTest, AMissingTransitFileIsMadeAndReadsAsBlanks) {
    files.remove(Transito);
    answers = {"20060315RBE"};
    EXPECT_TRUE(run());
    ASSERT_EQ(calls.size(), 1u);
    EXPECT_EQ(calls[0].tipoplanner, " ");
    EXPECT_EQ(calls[0].startdate, "        ");
    EXPECT_EQ(calls[0].collab, "  ");
    EXPECT_EQ(files.get(Transito).size(), 121u);
    EXPECT_THAT(messageTexts(), IsEmpty());
}

TEST_F(EventModeTest, AShortRequestAfterALongOneReadsAsBlanksWhereItEnds) {
    answers = {"20060315RBD", "20060315RBE"};
    ipc.hostActions = {[this] { files.put(Transito, "host-002G"); }};
    EXPECT_TRUE(run());
    EXPECT_EQ(calls[1].tipoplanner, "G");
    EXPECT_EQ(calls[1].startdate, "        ");
    EXPECT_EQ(answerInFile().riservato2.view(), std::string(60, ' '));
}

TEST_F(EventModeTest, AnUnreadableTransitFileIsSaidAndEndsTheConversation) {
    files.refuse(Transito);
    EXPECT_FALSE(run());
    EXPECT_THAT(messageTexts(),
                ElementsAre("Attenzione ! Problemi con il file di transito C:\\arch\\trans.dat"));
    EXPECT_THAT(journal, ElementsAre("message", "create [EV]", "signal [EV]", "remove [EV]"));
}

TEST_F(EventModeTest, ATransitFileThatBecomesUnreadableEndsTheConversationToo) {
    answers = {"20060315RBD"};
    ipc.hostActions = {[this] { files.refuse(Transito); }};
    EXPECT_FALSE(run());
    EXPECT_THAT(journal, ElementsAre("engine made", "WPlanner", "write trans.dat", "flush", "create [EV]",
                                     "signal [EV]", "wait [EV]", "message", "engine released", "signal [EV]",
                                     "remove [EV]"));
}

TEST_F(EventModeTest, AnAnswerThatTheUserGivesUpIsToldAndEndsTheConversationWhateverItsLetter) {
    files.refuseWriting(Transito);
    answers = {"20060315RBD"};
    EXPECT_FALSE(run());
    EXPECT_THAT(journal, ElementsAre("engine made", "WPlanner", "message", "flush", "engine released",
                                     "create [EV]", "signal [EV]", "remove [EV]"));
}

TEST_F(EventModeTest, AnAnswerThatCanBeWrittenAtLastIsOneLikeAnyOther) {
    files.refuseWriting(Transito);
    answers = {"20060315RBD", "20060315RBE"};
    messaggi.retries = {[] {}, [this] { files.allow(Transito); }};
    ipc.hostActions = {[this] { EXPECT_EQ(answerInFile().valret.view(), "20060315RBD"); }};
    EXPECT_TRUE(run());
    EXPECT_THAT(messageTexts(),
                ElementsAre("Attenzione ! Problemi con il file di transito C:\\arch\\trans.dat",
                            "Attenzione ! Problemi con il file di transito C:\\arch\\trans.dat"));
}

TEST_F(EventModeTest, AnUnexpectedErrorEndsTheConversation) {
    serve = [](WPlannerCall&) { throw std::bad_alloc(); };
    EXPECT_TRUE(run());
    EXPECT_THAT(journal, ElementsAre("engine made", "WPlanner", "message", "write trans.dat", "flush",
                                     "engine released", "create [EV]", "signal [EV]", "remove [EV]"));
}

TEST_F(EventModeTest, TheEventsNameIsTrimmed) {
    RigaComando line;
    line.PathTransito = Transito;
    line.NomeEvento = "  EV \xE0 ";
    answers = {"20060315RBE"};
    mtavtrmpl link(line, {files, messaggi}, [this] {
        return std::make_unique<FakeMotore>(journal, [](WPlannerCall& call) { call.valret = "20060315RBE"; });
    });
    EXPECT_TRUE(makeConversation(link).eventLoop());
    EXPECT_EQ(journal.back(), "remove [EV \xE0]");
}

} // namespace
} // namespace planner::test
