// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/relay.h"
#include "e2e/support/scenario.h"

namespace planner::e2e {

namespace {

/// The display is lost while the planner comes up.
class EarlyLoss : public Scenario {
protected:
    /// Starts a planner whose display is lost once it has said that many bytes. Its exit code hangs on how
    /// far it came.
    void loseAfter(std::size_t bytes) {
        SCOPED_TRACE(std::to_string(bytes) + " bytes");
        archivio.writeTransit(requestBytes('M'));
        Ospite host(evento, archivio.transitPath());
        host.startWaiting();
        const Relay relay(schermo.environment().at("DISPLAY"), bytes);
        Environment environment = plannerEnvironment();
        environment["DISPLAY"] = relay.display();
        Programma planner({archivio.transitPath(), "1", evento}, environment, Errors::Dropped);
        ASSERT_TRUE(planner.exitCode());
        EXPECT_LE(*planner.exitCode(), 1) << "it does not fall";
        const std::string answer = host.answer();
        EXPECT_TRUE(answer == closedOn(NoDay, requestBytes('M')) ||
                    answer == closedOn("20060315", requestBytes('M')))
            << answer;
        EXPECT_FALSE(eventStands());
    }
};

using LongEarlyLoss = EarlyLoss;

constexpr std::size_t UntilTheWindow = 36000; // bytes that the display has said by then

} // namespace

TEST_F(EarlyLoss, IsOneForTheHostToo) {
    for (const std::size_t bytes : {1U, 10000U, 12000U, 14000U, 20000U, 36000U}) {
        loseAfter(bytes);
    }
}

TEST_F(LongEarlyLoss, IsOneForTheHostTooWhereverItComes) {
    constexpr std::size_t step = 400;
    for (std::size_t bytes = 1; bytes < UntilTheWindow; bytes += step) {
        loseAfter(bytes);
    }
}

} // namespace planner::e2e
