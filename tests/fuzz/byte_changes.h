// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <random>
#include <string>
#include <vector>

namespace planner::test {

/// Makes inputs by changing seeds at random; the same number makes the same inputs on every machine.
class ByteChanges {
public:
    ByteChanges(std::vector<std::string> seeds, unsigned number)
        : m_seeds(std::move(seeds)), m_random(number) {}

    /// One of the seeds with a few changes. There must be a seed.
    std::string next();

private:
    void change(std::string& bytes);
    void insertSome(std::string& bytes);
    std::size_t below(std::size_t count) { return m_random() % count; }
    char anyByte();

    std::vector<std::string> m_seeds;
    std::mt19937 m_random;
};

} // namespace planner::test
