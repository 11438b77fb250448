// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/archivio.h"
#include "e2e/support/ospite.h"
#include "e2e/support/programma.h"
#include "e2e/support/richiesta.h"
#include "e2e/support/utente.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace planner::e2e {

namespace {

/// What the surroundings say of the screen, and the trouble that it makes.
struct Surroundings {
    const char* name;
    Environment environment;
    std::string trouble;
};

void PrintTo(const Surroundings& surroundings, std::ostream* out) {
    *out << surroundings.name;
}

class NoScreen : public testing::TestWithParam<Surroundings> {
protected:
    NoScreen() { archivio.writeTransit(requestBytes('M')); }

    /// Starts a planner on that event, and checks what it says and how it ends.
    void startInVain(const std::string& event) const {
        Environment environment = utente.environment();
        environment.insert(GetParam().environment.begin(), GetParam().environment.end());
        Programma planner({archivio.transitPath(), "1", event}, environment, Errors::InOutput);
        EXPECT_EQ(planner.readToEnd(),
                  "planner: lo schermo non può essere usato: " + GetParam().trouble + "\n");
        EXPECT_EQ(planner.exitCode(), 1);
    }

    const Utente utente;
    const Archivio archivio;
    const std::string closed = closedOn(NoDay, requestBytes('M'));
};

} // namespace

TEST_P(NoScreen, IsSaidInOneLineAndTheHostThatWaitsIsAnswered) {
    const std::string evento = std::filesystem::path(archivio.path()).filename();
    Ospite ospite(evento, archivio.transitPath());
    ospite.startWaiting();
    startInVain(evento);
    EXPECT_EQ(ospite.answer(), closed);
}

TEST_P(NoScreen, IsSaidInOneLineAndTheMarkerGoes) {
    archivio.putMarker(Archivio::LockPl);
    startInVain("NOEVENT");
    EXPECT_EQ(archivio.transit(), closed);
    EXPECT_FALSE(archivio.exists(Archivio::LockPl));
}

INSTANTIATE_TEST_SUITE_P(
    Because, NoScreen,
    testing::Values(Surroundings{"NoneIsNamed", {}, "could not connect to display"},
                    Surroundings{
                        "NobodyIsThere", {{"DISPLAY", ":4321"}}, "could not connect to display :4321"},
                    Surroundings{"ThereIsNoSuchKind",
                                 {{"QT_QPA_PLATFORM", "nessuno"}},
                                 "Could not find the Qt platform plugin \"nessuno\" in \"\""}),
    [](const auto& tested) { return tested.param.name; });

} // namespace planner::e2e
