// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/host_fixture.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <numeric>

namespace planner::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Refused = "Un altro planner usa già l'evento \"EV\". Questo planner si chiude.";
constexpr const char* Full =
    "Attenzione ! Problemi con l'evento \"EV\": No space left on device. Il planner si chiude.";

const GuaioEvento Owned{true, "Address already in use"};
const GuaioEvento NoSpace{false, "No space left on device"};

/// A conversation whose event calls fail.
class EventTroubleTest : public HostFixture {
protected:
    EventTroubleTest() { putRequest(richiesta()); }

    bool run() {
        mtavtrmpl link = makeLink("C:\\arch\\trans.dat 1 EV");
        return makeConversation(link).eventLoop();
    }
    void failAlways(const std::string& call, const GuaioEvento& trouble) {
        ipc.troubles[call].assign(1000, trouble);
    }
    std::chrono::milliseconds pausedFor() const {
        return std::accumulate(eventi.pauses.begin(), eventi.pauses.end(), std::chrono::milliseconds{0});
    }
    std::ptrdiff_t calls(const std::string& entry) const {
        return std::count(journal.begin(), journal.end(), entry);
    }
};

TEST_F(EventTroubleTest, ANameThatAnotherPlannerOwnsIsTriedForTwoSecondsThenSaid) {
    failAlways("create", Owned);
    answers = {"20060315RBD"};
    EXPECT_FALSE(run());
    EXPECT_EQ(pausedFor(), std::chrono::seconds{2});
    EXPECT_THAT(messageTexts(), ElementsAre(Refused));
    EXPECT_EQ(calls("create [EV]"), 21);
    EXPECT_EQ(calls("signal [EV]"), 0) << "the owner would be woken";
    EXPECT_EQ(answerInFile().valret.view(), "20060315RBD") << "the first answer is written in any case";
}

TEST_F(EventTroubleTest, ANameRefusedAtTheEndIsSaidToo) {
    failAlways("create", Owned);
    answers = {"20060315RBE"};
    EXPECT_FALSE(run());
    EXPECT_THAT(messageTexts(), ElementsAre(Refused));
    EXPECT_EQ(calls("signal [EV]"), 0);
}

TEST_F(EventTroubleTest, ATroubleThatPassesWithinTwoSecondsIsNotSaid) {
    ipc.troubles["create"].assign(20, NoSpace);
    answers = {"20060315RBE"};
    EXPECT_TRUE(run());
    EXPECT_THAT(messageTexts(), IsEmpty());
    EXPECT_EQ(journal.back(), "remove [EV]");
}

TEST_F(EventTroubleTest, ASignalThatCannotBeGivenIsSaidAndTheEventRemoved) {
    failAlways("signal", NoSpace);
    answers = {"20060315RBD"};
    EXPECT_FALSE(run());
    EXPECT_THAT(messageTexts(), ElementsAre(Full));
    EXPECT_EQ(journal.back(), "remove [EV]");
}

TEST_F(EventTroubleTest, AWaitThatCannotBeMadeIsSaidAndServesNothingAgain) {
    failAlways("wait", NoSpace);
    answers = {"20060315RBD"};
    EXPECT_FALSE(run());
    EXPECT_THAT(messageTexts(), ElementsAre(Full));
    EXPECT_EQ(calls("WPlanner"), 1);
    EXPECT_EQ(journal.back(), "remove [EV]");
}

TEST_F(EventTroubleTest, AHostThatHasAskedWhileTheWaitFailsIsAnsweredWithClose) {
    failAlways("wait", NoSpace);
    answers = {"20060315RBD"};
    eventi.onPause = [this] { putRequest(richiesta()); };
    EXPECT_FALSE(run());
    EXPECT_EQ(answerInFile().valret.view(), "00000000  E");
    EXPECT_EQ(calls("WPlanner"), 1);
    EXPECT_EQ(calls("signal [EV]"), 2);
    EXPECT_EQ(journal.back(), "remove [EV]");
}

TEST_F(EventTroubleTest, AHostThatAsksAfterTheWaitHasFailedIsWokenAndTheLastAnswerStays) {
    failAlways("wait", NoSpace);
    answers = {"20060315RBD"};
    EXPECT_FALSE(run());
    EXPECT_EQ(answerInFile().valret.view(), "20060315RBD");
    EXPECT_EQ(calls("signal [EV]"), 2);
}

TEST_F(EventTroubleTest, AnEventsNameIsSaidInReadableLetters) {
    mtavtrmpl link = makeLink("C:\\arch\\trans.dat 1 citt\xE0");
    failAlways("create", Owned);
    answers = {"20060315RBE"};
    EXPECT_FALSE(makeConversation(link).eventLoop());
    EXPECT_THAT(messageTexts(),
                ElementsAre("Un altro planner usa già l'evento \"città\". Questo planner si chiude."));
}

} // namespace
} // namespace planner::test
