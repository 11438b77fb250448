// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/archivio.h"
#include "e2e/support/ospite.h"
#include "e2e/support/programma.h"
#include "e2e/support/richiesta.h"
#include "e2e/support/utente.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <optional>

namespace planner::e2e {

namespace {

constexpr const char* Compositor = "/usr/bin/weston";
constexpr const char* Socket = "planner-test";

/// A user whose screen is a Wayland compositor's, which nobody sees.
class LongWayland : public testing::Test {
protected:
    void SetUp() override {
        if (!std::filesystem::exists(Compositor)) {
            GTEST_SKIP() << "needs the packages weston and qt6-wayland";
        }
        m_compositor.emplace(std::vector<std::string>{Compositor, "--backend=headless-backend.so",
                                                      "--use-pixman", "--no-config", "--idle-time=0",
                                                      std::string("--socket=") + Socket},
                             utente.environment(), Errors::Dropped);
        ASSERT_TRUE(
            comesTrue([this] { return std::filesystem::exists(utente.runtimeFolder() + "/" + Socket); }));
    }

    /// The planner's environment; its log tells how far it has come.
    Environment environment() const {
        Environment all = utente.environment();
        all.insert({{"WAYLAND_DISPLAY", Socket}, {"QT_QPA_PLATFORM", "wayland"}, {"PLANNER_LOG", log()}});
        return all;
    }
    std::string log() const { return utente.home() + "/log"; }
    /// Waits until the log of the planner holds the text.
    bool comesAsFarAs(const std::string& text) const {
        return comesTrue([&] { return test::fileBytes(log()).find(text) != std::string::npos; });
    }
    Processo& compositor() { return *m_compositor; }

    const Utente utente;
    const Archivio archivio;

private:
    std::optional<Processo> m_compositor;
};

} // namespace

TEST_F(LongWayland, ALostCompositorLeavesTheHostAnswered) {
    archivio.writeTransit(requestBytes('M'));
    const std::string evento = std::filesystem::path(archivio.path()).filename();
    Ospite ospite(evento, archivio.transitPath());
    ospite.startWaiting();
    Programma planner({archivio.transitPath(), "1", evento}, environment(), Errors::Dropped);
    ASSERT_TRUE(comesAsFarAs("archivio wrighipl"));
    compositor().kill();
    EXPECT_EQ(ospite.answer().at(98), 'E');
    EXPECT_EQ(planner.exitCode(), 0);
}

TEST_F(LongWayland, ALostCompositorEndsThePollingPlannerWithItsAnswer) {
    archivio.writeTransit(requestBytes('M'));
    archivio.putMarker(Archivio::LockPl);
    Programma planner({archivio.transitPath(), "1", "NOEVENT"}, environment(), Errors::Dropped);
    ASSERT_TRUE(comesAsFarAs("archivio wrighipl"));
    compositor().kill();
    EXPECT_EQ(planner.exitCode(), 0);
    EXPECT_EQ(archivio.transit().at(98), 'E');
    EXPECT_FALSE(archivio.exists(Archivio::LockPl));
}

} // namespace planner::e2e
