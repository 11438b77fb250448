// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "faults/support/cycle.h"
#include "faults/support/sweep.h"
#include "support/long_form.h"

#include <gmock/gmock.h>
#include <random>

namespace planner::faults {

namespace {

using testing::IsEmpty;

class KillSweep : public testing::TestWithParam<Modo> {};

} // namespace

TEST_P(KillSweep, APlannerKilledAtAnySystemCallLeavesAWholeRecordAndNobodyWaiting) {
    std::vector<Caso> cases;
    for (const Chiamata& call : Ufficio(GetParam()).calls()) {
        const Guasto guasto{call, "signal=KILL"};
        cases.push_back({guasto.text(), [guasto] {
                             const Ufficio ufficio(GetParam());
                             return ufficio.brokenBy(ufficio.cycleWith(guasto));
                         }});
    }
    EXPECT_GE(cases.size(), 20U);
    EXPECT_THAT(sweep(cases), IsEmpty()) << "of " << cases.size() << " cases";
}

TEST_P(KillSweep, APlannerKilledAtAnyMomentLeavesAWholeRecordAndNobodyWaiting) {
    const auto start = std::chrono::steady_clock::now();
    ASSERT_EQ(Ufficio(GetParam()).cycle().planner, 0);
    const auto whole = std::chrono::steady_clock::now() - start;
    std::mt19937 random(20060315);
    std::vector<Caso> cases;
    for (int i = 0; i < test::inForm(7, 100); ++i) {
        const auto moment =
            std::chrono::duration_cast<std::chrono::microseconds>(whole * (random() % 1000) / 1000);
        cases.push_back({std::to_string(moment.count()) + " us", [moment] {
                             const Ufficio ufficio(GetParam());
                             return ufficio.brokenBy(ufficio.cycleKilledAfter(moment));
                         }});
    }
    EXPECT_THAT(sweep(cases), IsEmpty()) << "of " << cases.size() << " cases";
}

INSTANTIATE_TEST_SUITE_P(EveryCall, KillSweep, testing::ValuesIn(Modi),
                         [](const auto& tested) { return nameOf(tested.param); });

} // namespace planner::faults
