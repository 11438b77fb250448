// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/consumo.h"
#include "e2e/support/scenario.h"
#include "support/long_form.h"

namespace planner::e2e {

namespace {

class WindowSoak : public Scenario {
protected:
    /// The host asks for a year, and the user goes to the previous one.
    void answerOnce(const Programma& planner) {
        const Finestra finestra = window(planner, "Planner Annuale");
        finestra.press("alt+Left");
        ASSERT_EQ(ospite.answer(), answeredWith("20060315  P", requestBytes('A')));
    }
    void serve(const Programma& planner, int requests) {
        for (int i = 0; i < requests; ++i) {
            archivio.writeTransit(requestBytes('A'));
            ASSERT_TRUE(ospite.signal());
            answerOnce(planner);
        }
    }
};

} // namespace

TEST_F(WindowSoak, OneWindowAfterTheOtherLeavesNothingBehindInTheProcess) {
    constexpr long mostGrowth = 2'048; // in kB
    const int requests = test::inForm(10, 300);
    archivio.writeTransit(requestBytes('A'));
    Programma& planner = startWithEvent();
    answerOnce(planner);
    serve(planner, requests / 3);
    ASSERT_TRUE(planner.comesToSleep());
    const Consumo before = consumoOf(planner.pid());
    serve(planner, requests);
    const Consumo after = settledConsumo(planner.pid(), before);
    EXPECT_LE(after.descriptors, before.descriptors);
    EXPECT_LE(after.threads, before.threads);
    if (!E2E_SANITIZED) { // which keeps freed memory back
        EXPECT_LE(after.kilobytes, before.kilobytes + mostGrowth);
    }
    RecordProperty("grown_kB", static_cast<int>(after.kilobytes - before.kilobytes));
}

} // namespace planner::e2e
