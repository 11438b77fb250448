// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/consumo.h"
#include "e2e/support/ospite.h"
#include "e2e/support/utente.h"
#include "faults/support/requests.h"
#include "support/long_form.h"

#include <gtest/gtest.h>

namespace planner::faults {

namespace {

/// A planner without a window that answers one request after the other.
class Soak : public testing::Test {
protected:
    void serve(int requests) {
        for (int i = 0; i < requests; ++i) {
            ask('D');
        }
    }
    void ask(char letter) {
        writeRequest(transit, letter);
        ASSERT_TRUE(ospite.signal());
        ASSERT_EQ(ospite.answer(), answerTo(letter));
    }
    /// The planner, once it has answered its first request and waits.
    std::unique_ptr<e2e::Processo> start() {
        writeRequest(transit, 'D');
        auto planner = std::make_unique<e2e::Processo>(
            std::vector<std::string>{ANSWER_WRITER_FILE, transit, "1", "EV"}, utente.environment());
        EXPECT_EQ(ospite.answer(), answerTo('D'));
        return planner;
    }

    const e2e::Utente utente;
    const test::TempFolder archive;
    const std::string transit = archive.path("TRANSIT.DAT");
    e2e::Ospite ospite{"EV", transit};
};

} // namespace

TEST_F(Soak, ThousandsOfRequestsLeaveNothingBehindInTheProcess) {
    constexpr e2e::Consumo waiting{0, 8, 2}; // the standard ones, the event, and the thread that waits for it
    constexpr long mostGrowth = 256;         // in kB
    const int requests = test::inForm(500, 10'000);
    const auto planner = start();
    serve(requests / 5);
    const e2e::Consumo before = e2e::settledConsumo(planner->pid(), waiting);
    ASSERT_GT(before.kilobytes, 0);
    serve(requests);
    const e2e::Consumo after = e2e::settledConsumo(planner->pid(), before);
    EXPECT_LE(after.descriptors, before.descriptors);
    EXPECT_LE(after.threads, before.threads);
    if (!E2E_SANITIZED) { // which keeps freed memory back
        EXPECT_LE(after.kilobytes, before.kilobytes + mostGrowth);
    }
    RecordProperty("grown_kB", static_cast<int>(after.kilobytes - before.kilobytes));
    ask('E');
    EXPECT_EQ(planner->exitCode(), 0);
}

} // namespace planner::faults
