// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "ipc_fixture.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <unistd.h>

namespace planner::ipctest {
namespace {

// Where the words of the two directions stand in an event's file.
constexpr off_t TO_HOST = 24;
constexpr off_t TO_CREATOR = 28;

// What no call ever leaves there.
constexpr std::array<std::uint32_t, 4> STRANGE_WORDS{5, 0x80000000U, 0xDEADBEEFU, 0xFFFFFFFFU};

constexpr std::array<off_t, 4> SHORT_LENGTHS{0, 8, 25, 31};
// Without a page to touch and with one, for what takes a second each.
constexpr std::array<off_t, 2> FEW_LENGTHS{0, 8};

// Someone spoils the event "EV" while it is in use.
class SpoiltEventTest : public IpcTest {
protected:
    void writeWord(off_t offset, std::uint32_t word) const {
        const int file = open(eventFile("EV").c_str(), O_WRONLY | O_CLOEXEC);
        ASSERT_GE(file, 0);
        EXPECT_EQ(pwrite(file, &word, sizeof word, offset), static_cast<ssize_t>(sizeof word));
        close(file);
    }

    void writeBothWords(std::uint32_t word) const {
        writeWord(TO_HOST, word);
        writeWord(TO_CREATOR, word);
    }

    void cut(off_t length) const { ASSERT_EQ(truncate(eventFile("EV").c_str(), length), 0); }

    void expectDialogue(Actor& planner, Actor& host) {
        ASSERT_EQ(planner.set("EV"), 1);
        ASSERT_EQ(host.wait("EV"), 1);
        ASSERT_EQ(host.set("EV"), 1);
        ASSERT_EQ(planner.wait("EV"), 1);
    }

    // Creation, dialogue and removal by these two, whatever they went through.
    void expectFreshStart(Actor& planner, Actor& host) {
        ASSERT_EQ(planner.create("EV"), 1);
        ASSERT_NO_FATAL_FAILURE(expectDialogue(planner, host));
        ASSERT_EQ(planner.remove("EV"), 1);
        EXPECT_EQ(eventFiles(), 0);
    }
};

TEST_F(SpoiltEventTest, StrangeWordsBeforeASignalCountAsNone) {
    for (const std::uint32_t word : STRANGE_WORDS) {
        Actor planner;
        Actor host;
        ASSERT_EQ(planner.create("EV"), 1);
        writeBothWords(word);
        ASSERT_NO_FATAL_FAILURE(expectDialogue(planner, host));
        ASSERT_EQ(planner.remove("EV"), 1);
    }
}

TEST_F(SpoiltEventTest, StrangeWordsBeforeAWaitAreSleptThrough) {
    for (const std::uint32_t word : STRANGE_WORDS) {
        Actor planner;
        Actor host;
        ASSERT_EQ(planner.create("EV"), 1);
        writeBothWords(word);
        host.beginWait("EV");
        planner.beginWait("EV");
        EXPECT_TRUE(host.isWaiting());
        EXPECT_TRUE(planner.isWaiting());
        Actor other;
        ASSERT_EQ(other.set("EV"), 1);
        EXPECT_EQ(planner.result(), 1);
        ASSERT_EQ(planner.set("EV"), 1);
        EXPECT_EQ(host.result(), 1);
        ASSERT_EQ(planner.remove("EV"), 1);
    }
}

TEST_F(SpoiltEventTest, StrangeWordsWhileBothSleepDoNotHinderTheSignals) {
    for (const std::uint32_t word : STRANGE_WORDS) {
        Actor planner;
        Actor host;
        Actor other;
        ASSERT_EQ(planner.create("EV"), 1);
        host.beginWait("EV");
        planner.beginWait("EV");
        ASSERT_TRUE(host.sleeps());
        ASSERT_TRUE(planner.sleeps());
        writeBothWords(word);
        EXPECT_TRUE(host.isWaiting());
        ASSERT_EQ(other.set("EV"), 1);
        EXPECT_EQ(planner.result(), 1);
        ASSERT_EQ(planner.set("EV"), 1);
        EXPECT_EQ(host.result(), 1);
        ASSERT_EQ(planner.remove("EV"), 1);
        EXPECT_EQ(eventFiles(), 0);
    }
}

TEST_F(SpoiltEventTest, StrangeWordsOfADeadCreatorAreTakenOver) {
    for (const std::uint32_t word : STRANGE_WORDS) {
        Actor planner;
        Actor host;
        Actor next;
        ASSERT_EQ(planner.create("EV"), 1);
        ASSERT_EQ(host.set("EV"), 1);
        planner.kill();
        writeBothWords(word);
        EXPECT_EQ(host.wait("EV"), 0);
        EXPECT_EQ(host.error(), EOWNERDEAD);
        host.beginWait("EV");
        ASSERT_TRUE(host.isWaiting());
        ASSERT_EQ(next.create("EV"), 1);
        ASSERT_EQ(next.set("EV"), 1);
        EXPECT_EQ(host.result(), 1);
        ASSERT_EQ(next.remove("EV"), 1);
    }
}

TEST_F(SpoiltEventTest, StrangeWordsDoNotHinderTheRemoval) {
    Actor planner;
    Actor host;
    ASSERT_EQ(planner.create("EV"), 1);
    writeBothWords(0xFFFFFFFFU);
    EXPECT_EQ(planner.remove("EV"), 1);
    EXPECT_EQ(eventFiles(), 0);
}

// As if someone else had taken the event out of use.
TEST_F(SpoiltEventTest, CreatorWhoseEventIsMarkedAsRemovedIsTold) {
    constexpr std::uint32_t retired = 2;
    Actor planner;
    ASSERT_EQ(planner.create("EV"), 1);
    writeBothWords(retired);
    EXPECT_EQ(planner.set("EV"), 0);
    EXPECT_EQ(planner.error(), EIDRM);
    EXPECT_EQ(planner.wait("EV"), 0);
    EXPECT_EQ(planner.error(), ECANCELED);
    EXPECT_EQ(planner.remove("EV"), 1);
    EXPECT_EQ(eventFiles(), 0);
}

TEST_F(SpoiltEventTest, CreatorOfACutEventIsTold) {
    for (const off_t length : SHORT_LENGTHS) {
        Actor planner;
        Actor host;
        ASSERT_EQ(planner.create("EV"), 1);
        cut(length);
        EXPECT_EQ(planner.set("EV"), 0);
        EXPECT_EQ(planner.error(), EIDRM);
        EXPECT_EQ(planner.wait("EV"), 0);
        EXPECT_EQ(planner.error(), EIDRM);
        ASSERT_NO_FATAL_FAILURE(expectFreshStart(planner, host));
    }
}

TEST_F(SpoiltEventTest, CutEventCanBeRemoved) {
    for (const off_t length : SHORT_LENGTHS) {
        Actor planner;
        ASSERT_EQ(planner.create("EV"), 1);
        ASSERT_EQ(planner.set("EV"), 1);
        cut(length);
        EXPECT_EQ(planner.remove("EV"), 1);
        EXPECT_EQ(eventFiles(), 0);
    }
}

// Going on after a stop, the system looks at the word again.
TEST_F(SpoiltEventTest, SleepingCreatorOfACutEventIsToldWhenItWakes) {
    Actor planner;
    ASSERT_EQ(planner.create("EV"), 1);
    planner.beginWait("EV");
    ASSERT_TRUE(planner.sleeps());
    cut(0);
    planner.stop();
    planner.goOn();
    EXPECT_EQ(planner.result(), 0);
    EXPECT_EQ(planner.error(), EIDRM);
}

TEST_F(SpoiltEventTest, HostOfACutEventCannotSignal) {
    for (const off_t length : SHORT_LENGTHS) {
        Actor planner;
        Actor host;
        ASSERT_EQ(planner.create("EV"), 1);
        ASSERT_EQ(host.set("EV"), 1);
        cut(length);
        EXPECT_EQ(host.set("EV"), 0);
        EXPECT_EQ(host.error(), ESRCH);
        ASSERT_NO_FATAL_FAILURE(expectFreshStart(planner, host));
    }
}

TEST_F(SpoiltEventTest, WaitBesideACutEventGoesOnWithTheNextCreation) {
    for (const off_t length : FEW_LENGTHS) {
        Actor planner;
        Actor host;
        ASSERT_EQ(planner.create("EV"), 1);
        host.beginWait("EV");
        ASSERT_TRUE(host.isWaiting());
        cut(length);
        EXPECT_TRUE(host.staysWaiting());
        ASSERT_EQ(planner.create("EV"), 1);
        ASSERT_EQ(planner.set("EV"), 1);
        EXPECT_EQ(host.result(), 1);
        ASSERT_EQ(planner.remove("EV"), 1);
    }
}

TEST_F(SpoiltEventTest, WaitOnACutEventThatTheHostKnowsLooksItsNameUpAgain) {
    for (const off_t length : FEW_LENGTHS) {
        Actor planner;
        Actor host;
        Actor other;
        ASSERT_EQ(planner.create("EV"), 1);
        ASSERT_EQ(host.set("EV"), 1);
        cut(length);
        host.beginWait("EV");
        ASSERT_TRUE(host.staysWaiting());
        ASSERT_EQ(other.create("EV"), 1);
        ASSERT_EQ(other.set("EV"), 1);
        EXPECT_EQ(host.result(), 1);
        ASSERT_EQ(other.remove("EV"), 1);
    }
}

TEST_F(SpoiltEventTest, CutEventDoesNotHinderOthersOfItsHost) {
    Actor planner;
    Actor host;
    ASSERT_EQ(planner.create("EV"), 1);
    ASSERT_EQ(planner.create("OTHER"), 1);
    ASSERT_EQ(host.set("EV"), 1);
    const int before = host.descriptors();
    cut(0);
    EXPECT_EQ(host.set("OTHER"), 1);
    EXPECT_EQ(host.descriptors(), before);
}

} // namespace
} // namespace planner::ipctest
