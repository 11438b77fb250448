// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ping_pong.h"

#include <atomic>
#include <cstdint>

namespace planner::bench {

// The comparator: two bare futex words in memory that both processes share, and nothing around them.
class FutexPair final : public PingPong {
public:
    FutexPair();
    ~FutexPair() override;

    void signalFar() override;
    void waitNear() override;
    void signalNear() override;
    void waitFar() override;

private:
    struct Words {
        std::atomic<std::uint32_t> toFar;
        std::atomic<std::uint32_t> toNear;
    };
    Words* m_words;
};

} // namespace planner::bench
