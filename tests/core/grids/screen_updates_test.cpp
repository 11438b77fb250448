// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "recording_observer.h"
#include "support/planner_bench.h"

#include <gmock/gmock.h>
#include <utility>
#include <vector>

namespace planner::test {
namespace {

using testing::SizeIs;

/// Each operation on a grid repaints it once, however many cells it writes.
class ScreenUpdatesTest : public testing::Test {
protected:
    using Operation = void (Contenuti::*)();

    void expectOneUpdateEach(Griglia& griglia, const std::vector<Operation>& operations) {
        for (std::size_t i = 0; i < operations.size(); ++i) {
            RecordingObserver observer;
            griglia.setOsservatore(&observer);
            (contenuti.*operations[i])();
            griglia.setOsservatore(nullptr);
            EXPECT_THAT(observer.told, SizeIs(1)) << "operation " << i;
        }
    }

    PlannerBench bench;
    Contenuti& contenuti = bench.motore;
};

TEST_F(ScreenUpdatesTest, TheMonthlyGridIsRepaintedOnceByEachOperation) {
    bench.putRighe({riga("RB", "20060315", {{1, "1"}}), riga("RB", "20060332", {{1, "1"}})});
    bench.init("M", "20060315");
    expectOneUpdateEach(bench.controlli.Flxm,
                        {&Contenuti::showgrid, &Contenuti::PopolaGrid1, &Contenuti::PulisciGrid1});
}

TEST_F(ScreenUpdatesTest, TheDailyGridIsRepaintedOnceByEachOperation) {
    bench.putRighe({conOrario(riga("RB", "20060315", {{1, "1"}}), "09", "00", "0000100")});
    bench.init("G", "20060315");
    expectOneUpdateEach(bench.controlli.flxg,
                        {&Contenuti::showgrid2, &Contenuti::PopolaGrid2, &Contenuti::PulisciGrid2});
}

TEST_F(ScreenUpdatesTest, TheYearlyGridIsRepaintedOnceByEachOperation) {
    bench.putAnnuale(annoPlanner("2006", {{1, 10}, {5, 5}}));
    bench.init("A", "20060315");
    expectOneUpdateEach(bench.controlli.flxa,
                        {&Contenuti::showgrid3, &Contenuti::PopolaGrid3, &Contenuti::PulisciGrid3});
}

} // namespace
} // namespace planner::test
