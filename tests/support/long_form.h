// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

namespace planner::test {

/// True when the tests that repeat themselves are to do so as often as before a release.
inline bool longForm() {
    return std::getenv("PLANNER_LONG_TESTS") != nullptr;
}

/// How often such a test repeats itself.
template <typename Count>
Count inForm(Count brief, Count whole) {
    return longForm() ? whole : brief;
}

} // namespace planner::test
