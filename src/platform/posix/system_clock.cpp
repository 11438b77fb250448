// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/system_clock.h"

#include <ctime>

namespace planner {

std::chrono::year_month_day SystemClock::today() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return {std::chrono::year{local.tm_year + 1900},
            std::chrono::month{static_cast<unsigned>(local.tm_mon + 1)},
            std::chrono::day{static_cast<unsigned>(local.tm_mday)}};
}

} // namespace planner
