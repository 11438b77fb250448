// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "event_model.h"
#include "ipc_fixture.h"
#include "support/long_form.h"

#include <random>

namespace planner::ipctest {
namespace {

using Result = EventModel::Result;

// Eight processes use one event in random order, and each call must do what the model says.
class ModelTest : public IpcTest {
protected:
    ModelTest() {
        for (auto& actor : m_actors) {
            actor = std::make_unique<Actor>();
        }
    }

    void step() {
        const std::size_t who = pick(EventModel::PROCESSES);
        const std::size_t what = pick(100);
        if (what < 12) {
            kill(who);
        } else if (!m_model.isWaiting(who)) {
            call(who, what);
        }
        settle();
    }

    std::size_t pick(std::size_t count) { return m_random() % count; }
    void seed(unsigned seed) { m_random.seed(seed); }

private:
    void kill(std::size_t who) {
        m_actors.at(who)->kill();
        m_actors.at(who) = std::make_unique<Actor>();
        m_model.kill(who);
    }

    void call(std::size_t who, std::size_t what) {
        Actor& actor = *m_actors.at(who);
        if (what < 26) {
            expectResult(m_model.create(who), actor.create("EV"), actor, "create");
        } else if (what < 50) {
            expectResult(m_model.set(who), actor.set("EV"), actor, "set");
        } else if (what < 65) {
            expectResult(m_model.remove(who), actor.remove("EV"), actor, "remove");
        } else {
            wait(who);
        }
    }

    void wait(std::size_t who) {
        Actor& actor = *m_actors.at(who);
        const std::optional<Result> expected = m_model.wait(who);
        actor.beginWait("EV");
        if (expected) {
            expectResult(*expected, actor.result(), actor, "wait");
        }
    }

    static void expectResult(const Result& expected, int done, const Actor& actor, const char* what) {
        ASSERT_EQ(done, expected.done) << what;
        if (done == 0) {
            ASSERT_EQ(actor.error(), expected.error) << what;
        }
    }

    // Waits for all that must happen without a further call, and sees that nothing else does.
    void settle() {
        if (m_model.tellsDeath()) {
            for (const std::size_t who : m_model.waitingHosts()) {
                expectResult({0, EOWNERDEAD}, m_actors.at(who)->result(), *m_actors.at(who), "death");
            }
            m_model.deathTold();
        }
        if (m_model.releasesOwner()) {
            const std::size_t owner = *m_model.owner();
            expectResult({1, 0}, m_actors.at(owner)->result(), *m_actors.at(owner), "owner's wait");
            m_model.released(owner);
        }
        while (!HasFatalFailure() && !m_model.hostsLeftWithASignal().empty()) {
            expectOneOf(m_model.hostsLeftWithASignal(), {0, EOWNERDEAD}, &EventModel::leftSignalTold);
        }
        if (m_model.releasesOneHost()) {
            expectOneOf(m_model.waitingHosts(), {1, 0}, &EventModel::released);
        }
        for (std::size_t who = 0; who < EventModel::PROCESSES; ++who) {
            ASSERT_TRUE(!m_model.isWaiting(who) || m_actors.at(who)->sleeps()) << who;
        }
    }

    // One of these hosts, whichever it is, must have its wait end so.
    void expectOneOf(const std::vector<std::size_t>& hosts, const Result& expected,
                     void (EventModel::*report)(std::size_t)) {
        std::optional<std::size_t> found;
        ASSERT_TRUE(comesTrue([&] {
            for (const std::size_t who : hosts) {
                if (m_actors.at(who)->isReleased()) {
                    found = who;
                }
            }
            return found.has_value();
        }));
        expectResult(expected, m_actors.at(*found)->result(), *m_actors.at(*found), "one host's wait");
        (m_model.*report)(*found);
    }

    std::mt19937 m_random;
    std::array<std::unique_ptr<Actor>, EventModel::PROCESSES> m_actors;
    EventModel m_model;
};

TEST_F(ModelTest, EightProcessesDoWhatTheModelSays) {
    constexpr int steps = 1000;
    seed(20060315);
    for (int i = 0; i < steps; ++i) {
        SCOPED_TRACE(i);
        ASSERT_NO_FATAL_FAILURE(step());
    }
}

TEST_F(ModelTest, EightProcessesForAMinute) {
    if (!test::longForm()) {
        GTEST_SKIP() << "takes a minute: set PLANNER_LONG_TESTS";
    }
    const unsigned chosen = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(chosen));
    seed(chosen);
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    for (int i = 0; std::chrono::steady_clock::now() < end; ++i) {
        SCOPED_TRACE(i);
        ASSERT_NO_FATAL_FAILURE(step());
    }
}

} // namespace
} // namespace planner::ipctest
