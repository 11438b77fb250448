// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ping_pong.h"

#include <string>

namespace planner::bench {

// An event of the library: the near end creates it, as the planner does, the far end is the host.
class LibraryPair final : public PingPong {
public:
    explicit LibraryPair(std::string name);

    void openNear() override;
    void closeNear() override;
    void signalFar() override;
    void waitNear() override;
    void signalNear() override;
    void waitFar() override;

private:
    std::string m_name;
};

} // namespace planner::bench
