// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#include "fuzz/fuzz_input.h"

#include <algorithm>
#include <iostream>
#include <stdexcept>

namespace planner::test {

namespace {

constexpr int ByteValues = 256;

} // namespace

void require(bool holds, std::string_view what) {
    if (!holds) {
        std::cerr << "broken: " << what << '\n';
        throw PropertyBroken{std::string(what)};
    }
}

int FuzzInput::byte() {
    if (m_rest.empty()) {
        return 0;
    }
    const int value = m_rest.front();
    m_rest = m_rest.subspan(1);
    return value;
}

int FuzzInput::number() {
    const int low = byte();
    return static_cast<std::int16_t>(byte() * ByteValues + low);
}

std::string FuzzInput::part() {
    const int low = byte();
    return take(static_cast<std::size_t>(byte() * ByteValues + low));
}

std::string FuzzInput::rest() {
    return take(m_rest.size());
}

std::string FuzzInput::take(std::size_t count) {
    const auto taken = m_rest.first(std::min(count, m_rest.size()));
    m_rest = m_rest.subspan(taken.size());
    return {taken.begin(), taken.end()};
}

std::string asPart(std::string_view text) {
    if (text.size() > UINT16_MAX) {
        throw std::length_error("too long for a part");
    }
    std::string bytes;
    bytes += static_cast<char>(text.size() % ByteValues);
    bytes += static_cast<char>(text.size() / ByteValues);
    return bytes.append(text);
}

} // namespace planner::test
