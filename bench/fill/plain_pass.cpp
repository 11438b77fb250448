// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "plain_pass.h"

#include "archive/records.h"

#include <charconv>

namespace planner::bench {

namespace {

int number(const char* begin, std::size_t length) {
    int value = 0;
    std::from_chars(begin, begin + length, value);
    return value;
}

} // namespace

std::int64_t plainPass(std::string_view bytes) {
    constexpr std::size_t firstCounter = 24;
    constexpr std::size_t counterLength = 5;
    constexpr std::size_t counters = 11;
    std::int64_t sum = 0;
    for (std::size_t at = 0; at + sizeof(RigaPlanner) <= bytes.size(); at += sizeof(RigaPlanner)) {
        const char* record = bytes.data() + at;
        sum += number(record + 2, 4) + number(record + 6, 2) + number(record + 8, 2);
        for (std::size_t i = 0; i < counters; ++i) {
            sum += number(record + firstCounter + i * counterLength, counterLength);
        }
    }
    return sum;
}

} // namespace planner::bench
