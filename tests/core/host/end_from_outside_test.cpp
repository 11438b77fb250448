// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/ftavtrmpl.h"
#include "support/host_fixture.h"

#include <gmock/gmock.h>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The program is told to end while it does something.
class EndFromOutsideTest : public HostFixture {
protected:
    /// What the process does at its end: nothing that comes after it happens.
    struct ProcessEnded {};

    EndFromOutsideTest() { putRequest(richiesta()); }

    void endsIn(bool expected = true) {
        EXPECT_EQ(conversazione.congedo(), expected);
        throw ProcessEnded();
    }
    void run() { EXPECT_THROW(conversazione.eventLoop(), ProcessEnded); }

    mtavtrmpl link = makeLink("C:\\arch\\trans.dat 1 EV");
    EventConversation conversazione = makeConversation(link);
};

TEST_F(EndFromOutsideTest, BeforeTheFirstRequestWasReadItIsAnsweredWithClose) {
    EXPECT_TRUE(conversazione.congedo());
    EXPECT_EQ(answerInFile().valret.view(), "00000000  E");
    EXPECT_EQ(answerInFile().collab.view(), "  ");
    EXPECT_EQ(answerInFile().riservato1.view(), "host-001");
    EXPECT_THAT(journal, ElementsAre("write trans.dat", "create [EV]", "signal [EV]", "remove [EV]"));
}

TEST_F(EndFromOutsideTest, AnOpenWindowsRequestIsAnsweredAsIfTheWindowHadBeenClosed) {
    serve = [this](WPlannerCall&) { endsIn(); };
    run();
    EXPECT_EQ(answerInFile().valret.view(), "20060321BIE");
    EXPECT_EQ(answerInFile().collab.view(), "BI");
    EXPECT_THAT(journal, ElementsAre("engine made", "WPlanner", "write trans.dat", "create [EV]",
                                     "signal [EV]", "remove [EV]"));
}

TEST_F(EndFromOutsideTest, AnAnswerThatCannotBeWrittenAtThatMomentIsNotAskedAbout) {
    files.refuseWriting(Transito);
    serve = [this](WPlannerCall&) { endsIn(false); };
    run();
    EXPECT_THAT(messageTexts(), IsEmpty());
    EXPECT_THAT(journal, ElementsAre("engine made", "WPlanner", "create [EV]", "signal [EV]", "remove [EV]"));
}

TEST_F(EndFromOutsideTest, AnAnswerThatTheUserIsAskedAboutBecomesOneOfClose) {
    files.refuseWriting(Transito);
    answers = {"20060315RBD"};
    messaggi.retries = {[this] {
        files.allow(Transito);
        endsIn();
    }};
    run();
    EXPECT_EQ(answerInFile().valret.view(), "20060321BIE");
}

TEST_F(EndFromOutsideTest, WhileItWaitsForTheHostTheLastAnswerStays) {
    answers = {"20060315RBD"};
    ipc.hostActions = {[this] { endsIn(); }};
    run();
    EXPECT_EQ(answerInFile().valret.view(), "20060315RBD");
    EXPECT_THAT(journal, ElementsAre("engine made", "WPlanner", "write trans.dat", "flush", "create [EV]",
                                     "signal [EV]", "wait [EV]", "remove [EV]"));
}

TEST_F(EndFromOutsideTest, ARequestThatCameAtThatMomentIsAnsweredWithClose) {
    answers = {"20060315RBD"};
    ipc.signalledBeforeRemoval = true;
    ipc.hostActions = {[this] {
        putRequest(richiesta("G"));
        journal.clear();
        endsIn();
    }};
    run();
    EXPECT_EQ(answerInFile().tipoplanner.view(), "G");
    EXPECT_EQ(answerInFile().valret.view(), "00000000  E");
    EXPECT_THAT(journal,
                ElementsAre("remove [EV]", "write trans.dat", "create [EV]", "signal [EV]", "remove [EV]"));
}

TEST_F(EndFromOutsideTest, AnAnswerOfCloseThatIsInTheFileStaysAsItIs) {
    answers = {"20060315RBE"};
    ipc.troubles["create"].assign(1, {true, "Address already in use"});
    eventi.onPause = [this] { endsIn(); };
    run();
    EXPECT_EQ(answerInFile().valret.view(), "20060315RBE");
    EXPECT_EQ(journal.back(), "remove [EV]");
}

TEST_F(EndFromOutsideTest, ANameThatAnotherPlannerOwnsIsNotSignalled) {
    ipc.troubles["create"].assign(1, {true, "Address already in use"});
    serve = [this](WPlannerCall&) { endsIn(false); };
    run();
    EXPECT_EQ(answerInFile().valret.view(), "20060321BIE");
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "signal [EV]"), 0);
}

/// The same in polling mode.
class EndWhilePollingTest : public EndFromOutsideTest {
protected:
    EndWhilePollingTest() {
        form.Form_Load();
        journal.clear();
    }

    static constexpr const char* Lock = "C:\\arch\\LockPl.lck";

    mtavtrmpl polled = makeLink("C:\\arch\\trans.dat 1 NOEVENT");
    Ftavtrmpl form{polled, files, timer};
};

TEST_F(EndWhilePollingTest, WithoutARequestNothingIsTouched) {
    EXPECT_TRUE(form.congedo());
    EXPECT_THAT(journal, IsEmpty());
    EXPECT_EQ(answerInFile(), richiesta());
}

TEST_F(EndWhilePollingTest, ARequestThatWasNotSeenYetIsAnsweredWithClose) {
    files.put(Lock, "");
    EXPECT_TRUE(form.congedo());
    EXPECT_EQ(answerInFile().valret.view(), "00000000  E");
    EXPECT_THAT(journal, ElementsAre("write trans.dat", "delete LockPl.lck"));
}

TEST_F(EndWhilePollingTest, AnOpenWindowsRequestIsAnsweredAsIfTheWindowHadBeenClosed) {
    files.put(Lock, "");
    serve = [this](WPlannerCall&) { EXPECT_TRUE(form.congedo()); };
    form.Timer1_Timer();
    EXPECT_THAT(journal, testing::IsSupersetOf({"write trans.dat", "delete LockPl.lck"}));
    EXPECT_FALSE(files.fileExists(Lock));
}

TEST_F(EndWhilePollingTest, AnAnswerWhoseMarkerCannotBeDeletedStaysAsItIs) {
    files.put(Lock, "");
    files.refuseDeleting(Lock);
    answers = {"20060315RBD"};
    form.Timer1_Timer();
    EXPECT_FALSE(form.congedo());
    EXPECT_EQ(answerInFile().valret.view(), "20060315RBD");
    files.allow(Lock);
    EXPECT_TRUE(form.congedo());
    EXPECT_FALSE(files.fileExists(Lock));
    EXPECT_EQ(answerInFile().valret.view(), "20060315RBD");
}

TEST_F(EndWhilePollingTest, ATransitFileThatIsGoneNeedsNoAnswer) {
    files.put(Lock, "");
    files.remove(Transito);
    EXPECT_TRUE(form.congedo());
    EXPECT_THAT(journal, IsEmpty());
    EXPECT_FALSE(files.fileExists(Transito));
}

} // namespace
} // namespace planner::test
