// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace planner::faults {

/// A case of a sweep: what it is called, and what it finds broken, "" for nothing.
struct Caso {
    std::string name;
    std::function<std::string()> run;
};

/// Runs the cases, several at a time since most of their time is waiting; returns what was broken, and where.
std::vector<std::string> sweep(const std::vector<Caso>& cases);

} // namespace planner::faults
