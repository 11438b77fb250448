// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace planner::test {

/// What was to hold for every input, and does not. It is no exception of the standard library, so that the
/// planner does not take it for an error of its own and answers the host.
struct PropertyBroken {
    std::string what;
};

/// Throws PropertyBroken unless the property holds; says so before, since the fuzzer shows no thrown texts.
void require(bool holds, std::string_view what);

/// Random bytes, taken from front to back; behind their end there are zeros.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : m_rest(data, size) {}

    bool atEnd() const { return m_rest.empty(); }
    /// 0 to 255.
    int byte();
    /// -32,768 to 32,767, the low byte first.
    int number();
    /// A text: its length in two bytes, the low one first, then as much of it as there is.
    std::string part();
    /// Everything that is left.
    std::string rest();

private:
    std::string take(std::size_t count);

    std::span<const std::uint8_t> m_rest;
};

/// A text as `FuzzInput::part` takes it. Throws std::length_error beyond 65,535 bytes.
std::string asPart(std::string_view text);

} // namespace planner::test
