// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "host/abandonment.h"
#include "support/host_fixture.h"

namespace planner::test {
namespace {

/// A planner that has answered once and waits for its host.
class AbandonmentTest : public HostFixture {
protected:
    AbandonmentTest() { putRequest(richiesta()); }

    /// Has the planner wait, and `act` happen meanwhile.
    void whileWaiting(Action act) {
        answers = {"20060315RBD", "20060315RBE"};
        ipc.hostActions = {std::move(act)};
        EXPECT_TRUE(conversazione.eventLoop());
    }
    int ticksUntilAbandoned(int atMost) {
        int ticks = 1;
        while (ticks <= atMost && !abbandono.tick()) {
            ++ticks;
        }
        return ticks;
    }

    mtavtrmpl link = makeLink("C:\\arch\\trans.dat 1 EV");
    EventConversation conversazione = makeConversation(link);
    Abandonment abbandono{conversazione, ipc, timer};
};

TEST_F(AbandonmentTest, TenSecondsWithoutStarterAndHostAreEnough) {
    whileWaiting([this] {
        ipc.hostAlive = false;
        abbandono.starterGone();
        EXPECT_TRUE(timer.enabled);
        EXPECT_EQ(ticksUntilAbandoned(100), 20) << "ticks of half a second";
    });
}

TEST_F(AbandonmentTest, AStarterThatIsGoneBeforeTheFirstAnswerWasTakenWasALauncher) {
    abbandono.starterGone();
    EXPECT_FALSE(timer.enabled) << "nothing is answered yet";
    whileWaiting([this] {
        ipc.answerTaken = false;
        abbandono.starterGone();
        EXPECT_FALSE(timer.enabled) << "the answer is not taken yet";
    });
}

TEST_F(AbandonmentTest, AHostThatLivesKeepsThePlanner) {
    whileWaiting([this] {
        abbandono.starterGone();
        EXPECT_EQ(ticksUntilAbandoned(1000), 1001);
    });
}

TEST_F(AbandonmentTest, AHostThatComesInBetweenStartsTheTimeAnew) {
    whileWaiting([this] {
        ipc.hostAlive = false;
        abbandono.starterGone();
        EXPECT_EQ(ticksUntilAbandoned(19), 20);
        ipc.hostAlive = true;
        EXPECT_FALSE(abbandono.tick());
        ipc.hostAlive = false;
        EXPECT_EQ(ticksUntilAbandoned(100), 20);
    });
}

TEST_F(AbandonmentTest, AWindowThatIsOpenIsNotAbandoned) {
    ipc.hostAlive = false;
    serve = [this](WPlannerCall& call) {
        abbandono.starterGone();
        EXPECT_EQ(ticksUntilAbandoned(100), 101);
        call.valret = "20060315RBE";
    };
    EXPECT_TRUE(conversazione.eventLoop());
}

TEST_F(AbandonmentTest, AHostThatHasAskedTwiceHasHadItsFirstAnswer) {
    whileWaiting([] {});
    ipc.answerTaken = false;
    EXPECT_TRUE(conversazione.haAvutoRisposta());
}

} // namespace
} // namespace planner::test
