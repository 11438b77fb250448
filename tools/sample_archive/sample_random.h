// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace planner {

/// A small random generator whose sequence is fixed by its seed alone, on every machine and with every
/// standard library: the sample archive must always come out with the same bytes.
class SampleRandom {
public:
    explicit SampleRandom(std::uint64_t seed) : m_state(seed) {}

    /// 0 to `count` - 1; `count` is at least 1.
    int below(int count) {
        const std::uint64_t scaled = (next() >> 32) * static_cast<std::uint64_t>(count);
        return static_cast<int>(scaled >> 32);
    }

    /// `low` to `high`, both included.
    int between(int low, int high) { return low + below(high - low + 1); }

    /// True in `percent` of 100 calls.
    bool chance(int percent) { return below(100) < percent; }

private:
    std::uint64_t next() {
        m_state += 0x9E3779B97F4A7C15u;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }

    std::uint64_t m_state;
};

} // namespace planner
