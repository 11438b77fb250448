// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/scenario.h"

namespace planner::e2e {

namespace {

/// A planner that waits for its host.
class Waiting : public Scenario {
protected:
    Waiting() {
        archivio.writeTransit(requestBytes('A'));
        m_planner = &startWithEvent();
    }
    Programma& planner() const { return *m_planner; }
    Finestra year() const { return window(*m_planner, "Planner Annuale"); }
    /// The user asks for another year: the planner waits from then on.
    void answer() {
        year().press("alt+Left");
        EXPECT_EQ(actionIn(ospite.answer()), 'P');
    }
    std::string pasted() const { return schermo.tool({PASTE_FILE}); }

private:
    Programma* m_planner;
};

} // namespace

TEST_F(Waiting, WhatWasCopiedBeforeCanBePasted) {
    year().press("ctrl+g");
    const Finestra chart = window(planner(), "Planner");
    std::string copied;
    EXPECT_TRUE(comesTrue([&] {
        chart.press("ctrl+c");
        copied = pasted();
        return !copied.empty();
    }));
    EXPECT_NE(copied.find("Gen\t"), std::string::npos) << copied;
    chart.press("Escape");
    EXPECT_TRUE(chart.disappears());
    answer();
    EXPECT_TRUE(planner().comesToSleep());
    EXPECT_EQ(pasted(), copied);
}

TEST_F(Waiting, NothingWakesThePlannerUp) {
    answer();
    EXPECT_TRUE(planner().comesToSleep(std::chrono::seconds{3}));
}

} // namespace planner::e2e
