// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "actor.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace planner::ipctest {

// A planner that leaves its last answer and ends.
inline void leaveLastSignal() {
    Actor other;
    ASSERT_EQ(other.create("EV"), 1);
    ASSERT_EQ(other.set("EV"), 1);
    ASSERT_EQ(other.remove("EV"), 1);
    other.end();
}

inline void expectDeathTold(Actor& told) {
    EXPECT_EQ(told.wait("EV"), 0);
    EXPECT_EQ(told.error(), EOWNERDEAD);
}

} // namespace planner::ipctest
