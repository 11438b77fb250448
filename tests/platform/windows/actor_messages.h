// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace planner::ipctest {

// What an actor's program reads from its standard input, before a name of that length, and what it writes to
// its standard output: once when the call begins, with BEGUN for a result, and once when it has ended.
enum class Call : std::uint32_t { Create, Set, Wait, Remove };

struct Order {
    Call call;
    std::uint32_t length;
};

struct Reply {
    int result;
    int error;
};

constexpr int BEGUN = -2;

} // namespace planner::ipctest
