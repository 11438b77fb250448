// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "support/planner_bench.h"

#include <array>
#include <gtest/gtest.h>

namespace planner::test {
namespace {

/// Weekdays of the first days of the months of 2006, 1 = Sunday.
constexpr std::array<std::int16_t, 12> FirstWeekdays{1, 4, 4, 7, 2, 5, 7, 3, 6, 1, 4, 6};

class FirstWeekdayTest : public testing::Test {
protected:
    FirstWeekdayTest() { bench.sessione.PathArchivi = PlannerBench::Cartella; }

    /// Reads the appointments for a day of each month; expects the weekday of the month's first day.
    void readEachMonth(int day) {
        for (int month = 1; month <= 12; ++month) {
            bench.controlli.calendario.setValue(makeDate(2006, month, day).value());
            bench.motore.LeggiDati();
            EXPECT_EQ(bench.controlli.PrimoGiornoSettimana(),
                      FirstWeekdays.at(static_cast<std::size_t>(month - 1)))
                << "month " << month;
        }
    }

    PlannerBench bench;
};

TEST_F(FirstWeekdayTest, IsThatOfTheMonthWhoseAppointmentsAreRead) {
    readEachMonth(1);
    readEachMonth(28);
}

TEST_F(FirstWeekdayTest, IsKnownWithoutTheAppointmentsToo) {
    bench.files.remove(PlannerBench::path(FileRighe));
    readEachMonth(15);
}

} // namespace
} // namespace planner::test
