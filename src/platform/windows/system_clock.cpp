// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "platform/system/system_clock.h"

#include <windows.h>

namespace planner {

std::chrono::year_month_day SystemClock::today() const {
    SYSTEMTIME local{};
    ::GetLocalTime(&local);
    return {std::chrono::year{local.wYear}, std::chrono::month{local.wMonth}, std::chrono::day{local.wDay}};
}

} // namespace planner
