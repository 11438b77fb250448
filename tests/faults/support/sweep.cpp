// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "faults/support/sweep.h"

#include <atomic>
#include <exception>
#include <mutex>
#include <thread>

namespace planner::faults {

namespace {

constexpr int AtATime = 12;

std::string resultOf(const Caso& caso) {
    try {
        return caso.run();
    } catch (const std::exception& error) {
        return error.what();
    }
}

} // namespace

std::vector<std::string> sweep(const std::vector<Caso>& cases) {
    std::vector<std::string> broken;
    std::mutex guard;
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t i = next++; i < cases.size(); i = next++) {
            if (const std::string result = resultOf(cases[i]); !result.empty()) {
                const std::scoped_lock lock(guard);
                broken.push_back(cases[i].name + ": " + result);
            }
        }
    };
    std::vector<std::jthread> workers;
    for (int i = 0; i < AtATime; ++i) {
        workers.emplace_back(work);
    }
    workers.clear();
    return broken;
}

} // namespace planner::faults
