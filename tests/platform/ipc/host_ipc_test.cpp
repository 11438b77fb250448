// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fault.h"
#include "ipc_fixture.h"
#include "platform/ipc/tavterm_host_ipc.h"

#include <cerrno>
#include <fstream>
#include <functional>
#include <semaphore>
#include <thread>

namespace planner::ipctest {
namespace {

// Wake-ups alone; `beside` happens in each wait for events, in the waiting thread.
class WakeUps : public EventPump {
public:
    void waitAndProcess() override {
        if (beside) {
            beside();
        }
        m_pending.acquire();
    }
    void processFor(std::chrono::milliseconds) override {}
    void wakeUp() override { m_pending.release(); }
    void flush() override {}

    std::function<void()> beside;

private:
    std::counting_semaphore<> m_pending{0};
};

// Whether a second thread of this process has come to sleep.
bool waiterSleeps() {
    return comesTrue([] {
        int asleep = 0;
        for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
            std::ifstream file(thread.path() / "stat");
            std::string stat;
            std::getline(file, stat);
            asleep += stat.substr(stat.rfind(')') + 2, 1) == "S" ? 1 : 0;
        }
        return asleep == 1; // the caller runs
    });
}

// The planner's side in this process, the host's in an actor's.
class HostIpcTest : public IpcTest {
protected:
    void TearDown() override { ipc.TvIpcRimozioneEvento("EV"); }

    Actor host;
    Actor other;
    WakeUps eventi;
    TavTermHostIpc ipc{eventi};
};

TEST_F(HostIpcTest, TheWaitEndsWhenTheHostSignalsAndEventsAreProcessedMeanwhile) {
    ASSERT_FALSE(ipc.TvIpcCreazioneEvento("EV"));
    const auto caller = std::this_thread::get_id();
    bool processed = false;
    eventi.beside = [&] {
        EXPECT_EQ(std::this_thread::get_id(), caller);
        EXPECT_EQ(host.set("EV"), 1);
        processed = true;
    };
    EXPECT_FALSE(ipc.TvIpcWaitEvento("EV"));
    EXPECT_TRUE(processed);
}

TEST_F(HostIpcTest, AWaitIsCalledOffByRemovingTheEvent) {
    ASSERT_FALSE(ipc.TvIpcCreazioneEvento("EV"));
    bool signalled = true;
    eventi.beside = [&] {
        EXPECT_TRUE(waiterSleeps());
        signalled = ipc.interrompiAttesa("EV");
        eventi.beside = {};
    };
    EXPECT_THROW(ipc.TvIpcWaitEvento("EV"), std::exception) << "its result has been taken";
    EXPECT_FALSE(signalled);
    EXPECT_EQ(eventFiles(), 0);
}

TEST_F(HostIpcTest, AWaitThatIsCalledOffKnowsWhetherTheHostHadSignalled) {
    ASSERT_FALSE(ipc.TvIpcCreazioneEvento("EV"));
    bool signalled = false;
    eventi.beside = [&] {
        EXPECT_TRUE(waiterSleeps());
        EXPECT_EQ(host.set("EV"), 1);
        signalled = ipc.interrompiAttesa("EV");
        eventi.beside = {};
    };
    EXPECT_THROW(ipc.TvIpcWaitEvento("EV"), std::exception) << "its result has been taken";
    EXPECT_TRUE(signalled);
}

TEST_F(HostIpcTest, ANameThatAnotherProcessOwnsIsATroubleOfItsOwn) {
    ASSERT_EQ(other.create("EV"), 1);
    const EsitoEvento esito = ipc.TvIpcCreazioneEvento("EV");
    ASSERT_TRUE(esito);
    EXPECT_TRUE(esito->giaUsato);
}

TEST_F(HostIpcTest, AnyOtherTroubleComesInTheSystemsWords) {
    const EsitoEvento esito = ipc.TvIpcCreazioneEvento(std::string(300, 'x'));
    EXPECT_EQ(esito, (GuaioEvento{false, "File name too long"}));
}

TEST_F(HostIpcTest, AWaitForWhichNoThreadCanBeMadeIsATrouble) {
    ASSERT_FALSE(ipc.TvIpcCreazioneEvento("EV"));
    failCall("pthread_create", 1, EAGAIN);
    EXPECT_EQ(ipc.TvIpcWaitEvento("EV"), (GuaioEvento{false, "Resource temporarily unavailable"}));
    EXPECT_TRUE(hasFailed());
}

TEST_F(HostIpcTest, TellsWhetherTheAnswerIsTakenAndWhetherAHostLives) {
    ASSERT_FALSE(ipc.TvIpcCreazioneEvento("EV"));
    ASSERT_FALSE(ipc.TvIpcSetEvento("EV"));
    EXPECT_FALSE(ipc.rispostaPresa());
    EXPECT_FALSE(ipc.ospiteVivo());
    ASSERT_EQ(host.wait("EV"), 1);
    EXPECT_TRUE(ipc.rispostaPresa());
    EXPECT_TRUE(ipc.ospiteVivo());
    host.kill();
    EXPECT_FALSE(ipc.ospiteVivo());
}

TEST_F(HostIpcTest, CreatedTwiceItStaysTheOwner) {
    ASSERT_FALSE(ipc.TvIpcCreazioneEvento("EV"));
    ASSERT_FALSE(ipc.TvIpcCreazioneEvento("EV"));
    EXPECT_EQ(other.create("EV"), 0);
}

TEST_F(HostIpcTest, BeforeThereIsAnEventNothingIsKnown) {
    EXPECT_TRUE(ipc.rispostaPresa());
    EXPECT_TRUE(ipc.ospiteVivo());
}

} // namespace
} // namespace planner::ipctest
