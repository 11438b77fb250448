// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/system_clock.h"

#include <gtest/gtest.h>
#include <stdlib.h>

namespace planner::test {
namespace {

TEST(SystemClockTest, TodayIsTheDayOfTheLocalTimeZone) {
    const char* before = ::getenv("TZ");
    const std::string saved = before == nullptr ? "" : before;
    const SystemClock clock;
    const auto todayIn = [&](const char* zone) {
        ::setenv("TZ", zone, 1);
        ::tzset();
        return std::chrono::sys_days(clock.today());
    };
    // The two zones lie 26 hours apart, so that their days always differ.
    const auto west = todayIn("West12");
    const auto east = todayIn("East-14");
    before == nullptr ? ::unsetenv("TZ") : ::setenv("TZ", saved.c_str(), 1);
    ::tzset();
    EXPECT_GE((east - west).count(), 1);
    EXPECT_LE((east - west).count(), 2);
}

} // namespace
} // namespace planner::test
