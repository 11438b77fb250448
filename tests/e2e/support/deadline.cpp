// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "e2e/support/deadline.h"

#include <thread>

namespace planner::e2e {

bool comesTrue(const std::function<bool()>& condition, std::chrono::milliseconds within) {
    constexpr std::chrono::milliseconds interval{20};
    const auto end = std::chrono::steady_clock::now() + within;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(interval);
    }
    return true;
}

} // namespace planner::e2e
